#!/usr/bin/env python3
"""Holds the plan of the house: includes point downwards, siblings do not know each other, logic knows no widgets,
one place shows boxes.

usage: check.py SOURCE_DIR QT_CORE_INCLUDE_DIR
Prints each breach as file:line and exits with 1 when there is one.
"""
import pathlib
import re
import sys

# The rooms with their floors. A folder belongs to the longest name that it begins with.
FLOORS = {
    "platform": 1,
    "theory": 2,
    "spreadsheet": 2,
    "spreadsheet/journal": 2,
    "spreadsheet/xls": 2,
    "spreadsheet/embedded": 2,
    "spreadsheet/libreoffice": 2,
    "song": 3,
    "board": 3,
    "playing/stepping": 4,
    "playing/undo": 4,
    "playing/intervals": 4,
    "playing/recording": 4,
    "playing/song": 4,
    "conversion": 4,
    "aids": 4,
    "app": 5,
    "ukazka": 6,
    "bench": 6,
    "tools": 6,
}

TOP = max(FLOORS.values())

# Whom a room may know on its own floor; everything on a lower one it may.
NEIGHBOURS = {
    "spreadsheet/journal": {"spreadsheet"},
    "spreadsheet/embedded": {"spreadsheet", "spreadsheet/journal", "spreadsheet/xls"},
    "spreadsheet/libreoffice": {"spreadsheet"},
    "playing/undo": {"playing/stepping"},
    "playing/recording": {"playing/stepping", "playing/undo"},
    "playing/song": {"playing/stepping", "playing/undo"},
}

# What is denied although it lies lower.
DENIED = {
    "spreadsheet/xls": {"platform"},
    "board": {"spreadsheet", "spreadsheet/xls", "spreadsheet/embedded", "spreadsheet/libreoffice"},
}
# Of the ground floor these rooms know the ports alone, no adapter.
ADAPTERS = re.compile(r"platform/((ui|media|files)/|\w*(Drive|Store|Clock|Settings|Link|Folders)\.h)")
PORTS = {"platform/Drive.h", "platform/SettingsStore.h", "platform/WakeUpClock.h"}
PORTS_ONLY = {"theory", "spreadsheet", "song", "board", "conversion"}
# The inside of a back end is for the composition root and what stands above it.
BACK_ENDS = {"spreadsheet/xls", "spreadsheet/embedded", "spreadsheet/libreoffice"}
LOWEST_WITH_BACK_ENDS = 5

INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]')
BOXES = re.compile(r"\bQ(MessageBox|InputDialog|FileDialog)\b")
LONGEST_FILE = 400


def room(path):
    """The room that a path from the root stands in; None: in none."""
    parts = path.split("/")[:-1]
    while parts:
        if "/".join(parts) in FLOORS:
            return "/".join(parts)
        parts.pop()
    return None


def is_ui(path):
    return FLOORS[room(path)] >= 5 or "/ui/" in path


def why_denied(path, target):
    """Why the file `path` may not include `target`; None when it may. Both are paths from the root."""
    own, other = room(path), room(target)
    if target.startswith("tests/") and FLOORS[own] == TOP:
        return None
    if other is None:
        return "not included from the root, or of no room"
    if "/ui/" in target and not is_ui(path):
        return "a widget, and this is logic"
    if own == other:
        return None
    if FLOORS[other] > FLOORS[own]:
        return f"{other} stands on floor {FLOORS[other]}, above floor {FLOORS[own]}"
    if FLOORS[other] == FLOORS[own] and FLOORS[own] < TOP and other not in NEIGHBOURS.get(own, ()):
        return f"{own} does not know {other} beside it"
    if other in DENIED.get(own, ()):
        return f"{own} does not know {other}"
    if own in PORTS_ONLY and not is_ui(path) and ADAPTERS.match(target) and target not in PORTS:
        return f"an adapter, and {own} knows ports only"
    if other in BACK_ENDS and FLOORS[own] < LOWEST_WITH_BACK_ENDS and other not in NEIGHBOURS.get(own, ()):
        return f"{other} is known by the composition root alone"
    return None


def breaches(root, qt_core, path):
    text = (root / path).read_text(encoding="utf-8").splitlines()
    if len(text) > LONGEST_FILE:
        yield 1, f"{len(text)} lines, {LONGEST_FILE} is the limit"
    if room(path) is None:
        yield 1, "stands in no room: add it to the table of this check"
        return
    for number, line in enumerate(text, 1):
        if BOXES.search(line) and not path.startswith("platform/ui/"):
            yield number, "a box outside the Dialogs adapter"
        found = INCLUDE.match(line)
        if not found:
            continue
        kind, target = found.groups()
        if kind == '"':
            why = why_denied(path, target)
            if why:
                yield number, f"{target}: {why}"
        elif room(path) == "spreadsheet/xls" and target.startswith("Q"):
            yield number, "the file engine knows no Qt"
        elif target.startswith("Q") and not is_ui(path) and not (qt_core / target).exists():
            yield number, f"<{target}> is not of Qt Core, and this is logic"


def sources(root):
    rooms = sorted({name.split("/")[0] for name in FLOORS})
    for name in rooms:
        for file in sorted((root / name).rglob("*")):
            if file.suffix in (".h", ".cpp"):
                yield str(file.relative_to(root))


def main():
    root, qt_core = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    if not (qt_core / "QString").exists():
        sys.exit(f"no Qt Core headers in {qt_core}")
    files = list(sources(root))
    found = [(path, *breach) for path in files for breach in breaches(root, qt_core, path)]
    for path, number, what in found:
        print(f"{path}:{number}: {what}")
    print(f"{len(files)} files, {len(found)} breaches")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
