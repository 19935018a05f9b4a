#!/usr/bin/env python3
"""Holds the plan of the house: includes point downwards, logic knows no widgets, one place shows boxes.

usage: check.py SOURCE_DIR QT_CORE_INCLUDE_DIR
Prints each breach as file:line and exits with 1 when there is one.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
QT_CORE = pathlib.Path(sys.argv[2])

PARTS = ("theory", "song", "board", "conversion", "aids", "platform", "app")
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]')
BOXES = re.compile(r"\bQ(MessageBox|InputDialog|FileDialog)\b")
LONGEST_FILE = 600

# Floors from the ground up. The first pattern that matches a path decides.
FLOORS = [
    (r"^app/", 6),
    (r"(^|/)ui/", 5),
    (r"^song/(Automat|Hlaseni|Listy|OkoliPisne|PrikazyPisne|SlozkaPisni|ZobrazeniHmatu|PasPisne|Navigace|ZivotPisne|Zvuk|StavovyRadek|UkonceniExcelu|SpusteniExcelu)\b", 4),
    (r"^board/(Intervaly|ZobrazeniIntervalu|Prstoklad|KlikDiskantu|Uvolneni|ZapisHmatu|ZapisHmatuZNot|ZapisNoty|ZapisBasu|RadekZapisu|PoZapisu)\b", 4),
    (r"^conversion/|^aids/", 4),
    (r"^board/|^song/(Grip|SongSheet|SongPanel|Pas|ZobrazovaciOsnova|CommandStates|Timer1)\b", 3),
    (r"^song/(embedded|libreoffice|excel)/|^song/(SpreadsheetApplication|CellValue|CellSearch|Address|WorkbookPlaces)\b", 2),
    (r"^theory/|^song/xls/|^platform/", 1),
]


def floor(path):
    for pattern, number in FLOORS:
        if re.search(pattern, path):
            return number
    return None


def is_ui(path):
    return path.startswith("app/") or "/ui/" in path


def breaches(path):
    text = (ROOT / path).read_text(encoding="utf-8").splitlines()
    if len(text) > LONGEST_FILE:
        yield 1, f"{len(text)} lines, {LONGEST_FILE} is the limit"
    own_floor = floor(path)
    if own_floor is None:
        yield 1, "stands on no floor: add it to the table of this check"
        return
    for number, line in enumerate(text, 1):
        if BOXES.search(line) and not path.startswith("platform/ui/"):
            yield number, "a box outside the Dialogs adapter"
        found = INCLUDE.match(line)
        if not found:
            continue
        kind, target = found.groups()
        if kind == '"':
            other = floor(target)
            if other is None:
                yield number, f"{target}: not included from the root"
            elif other > own_floor:
                yield number, f"{target} stands on floor {other}, above floor {own_floor}"
        elif target.startswith("Q") and not is_ui(path) and not (QT_CORE / target).exists():
            yield number, f"<{target}> is not of Qt Core, and this is logic"
        elif path.startswith("song/xls/") and target.startswith("Q"):
            yield number, "the file engine knows no Qt"


def main():
    if not (QT_CORE / "QString").exists():
        sys.exit(f"no Qt Core headers in {QT_CORE}")
    count = 0
    files = [str(f.relative_to(ROOT)) for part in PARTS for f in sorted((ROOT / part).rglob("*")) if f.suffix in (".h", ".cpp")]
    for path in files:
        for number, what in breaches(path):
            print(f"{path}:{number}: {what}")
            count += 1
    print(f"{len(files)} files, {count} breaches")
    return 1 if count or not files else 0


if __name__ == "__main__":
    sys.exit(main())
