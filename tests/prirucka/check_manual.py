#!/usr/bin/env python3
"""Holds the manual against the program.

usage: check_manual.py SOURCE_DIR
Every link leads to a place of the page and every picture exists, shown at its size; every caption (<em>), every
message („...“ in the tables of messages) and every key is one that the sources know; every command of the
main window is spoken of. Prints what is wrong as line: text and exits with 1 when there is something.
"""
import html
import pathlib
import re
import struct
import sys
import urllib.parse

ROOT = pathlib.Path(sys.argv[1])
MANUAL = ROOT / "resources" / "Tamík.htm"
CAPTION_SOURCES = ["app/*.cpp", "app/ui/*.cpp", "*/ui/*.cpp", "*/*/ui/*.cpp", "*/*.h"]
MESSAGE_SOURCES = ["app/*.cpp", "platform/files/*.cpp", "playing/**/*.cpp", "spreadsheet/**/*.cpp", "song/*.cpp", "board/*.cpp", "theory/*.cpp", "conversion/*.cpp", "aids/*.cpp",
                   "*/*.h"]
LITERAL = re.compile(r'(?:u|u8)?"((?:[^"\\\n]|\\.)*)"(?:\s*(?:u|u8)?"((?:[^"\\\n]|\\.)*)")*')
PIECE = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
# Names of keys as the manual prints them, and as the toolkit spells them.
KEYS = {"←": "Left", "→": "Right", "↑": "Up", "↓": "Down", "Mezerník": "Space", "Esc": "Escape", "Enter": "Return"}
KNOWN_EVERYWHERE = {"Tab", "Enter", "Esc", "Shift", "Shift+Enter", "Delete", "Insert", "Mezerník", "PageDown", "PageUp",
                    "#", "b", "n", "+", "-", "0", "←", "→", "↑", "↓", "F2", "F10"}


class Manual:
    """What the page names, each with its line."""

    def __init__(self, page):
        def found(pattern, group=1):
            return [(page.count("\n", 0, match.start()) + 1, match.group(group))
                    for match in re.finditer(pattern, page, re.DOTALL)]

        def texts(pattern):
            return [(line, " ".join(plain(text).split())) for line, text in found(pattern)]

        self.ids = found(r'<[^>]*\bid="([^"]*)"')
        self.links = found(r'<a\b[^>]*\bhref="([^"]*)"')
        self.pictures = [(line, dict(re.findall(r'(\w+)="([^"]*)"', tag))) for line, tag in found(r"<img\b([^>]*)>")]
        self.captions, self.keys = texts(r"<em>(.*?)</em>"), texts(r"<kbd>(.*?)</kbd>")
        start, end = page.index('id="hlaseni"'), page.index("<h2", page.index('id="hlaseni"'))
        first, last = (page.count("\n", 0, place) for place in (start, end))
        self.messages = [row for row in texts(r"<tr[^>]*>\s*<td[^>]*>(.*?)</td>") if first < row[0] <= last]


def plain(markup):
    return html.unescape(re.sub(r"<[^>]*>", "", markup))


def literals(patterns):
    """Every text of the sources, neighbouring pieces joined, without the marks of mnemonics."""
    found = set()
    for pattern in patterns:
        for file in ROOT.glob(pattern):
            source = file.read_text(encoding="utf-8")
            for match in LITERAL.finditer(source):
                text = "".join(PIECE.findall(match.group(0)))
                text = text.replace('\\"', '"').replace("\\n", "\n").replace("\\\\", "\\")
                found.add(text)
                found.add(text.replace("&", ""))
    return found


def png_width(file):
    with open(file, "rb") as png:
        return struct.unpack(">I", png.read(24)[16:20])[0]


def pictures(manual):
    named = set()
    for line, given in manual.pictures:
        file = MANUAL.parent / urllib.parse.unquote(given["src"])
        named.add(file)
        if not file.is_file():
            yield line, f"no such picture: {given['src']}"
        elif int(given.get("width", "0")) != png_width(file) // 2:
            yield line, f"{given['src']} holds two pixels a point, so its width is {png_width(file) // 2}"
        if not given.get("alt"):
            yield line, f"{given['src']} has no words for those who cannot see it"
    for file in sorted((MANUAL.parent / "obrazky").glob("*.png")):
        if file not in named:
            yield 0, f"{file.name} is shown nowhere"


def links(manual):
    ids = [name for _, name in manual.ids]
    for line, target in manual.links:
        if not target.startswith("#") or target[1:] not in ids:
            yield line, f"leads nowhere: {target}"
    for line, name in manual.ids:
        if ids.count(name) > 1:
            yield line, f"two places are called {name}"
        if f"#{name}" not in [target for _, target in manual.links]:
            yield line, f"nothing leads to {name}"


def captions(manual):
    known = literals(CAPTION_SOURCES)
    for line, caption in manual.captions:
        if caption not in known:
            yield line, f"no control is captioned {caption!r}"


def messages(manual):
    known = "\n".join(literals(MESSAGE_SOURCES))
    for line, cell in manual.messages:
        for quoted in re.findall("„([^“]*)“", cell):
            for part in re.split("…|'9'", quoted):
                if part.strip(" :") and part.strip(" :") not in known:
                    yield line, f"no message says {part.strip()!r}"


def keys(manual):
    known = literals(CAPTION_SOURCES)
    code = "\n".join(file.read_text(encoding="utf-8") for pattern in CAPTION_SOURCES for file in ROOT.glob(pattern))
    for line, key in manual.keys:
        if key in KNOWN_EVERYWHERE:
            continue
        parts = key.split("+") if not key.endswith("+") else [*key[:-2].split("+"), "Plus"]
        if parts[-1] == "" :
            parts[-1] = "Minus"
        parts = [KEYS.get(part, part) for part in parts]
        spelled = "+".join(parts)
        constant = " | ".join([*(f"Qt::{'CTRL' if m == 'Ctrl' else m.upper()}" for m in parts[:-1]),
                               "Qt::Key_" + parts[-1].replace("-", "Minus")])
        if spelled not in known and constant not in code and not any(f"({spelled})" in text for text in known):
            yield line, f"no command has the key {key}"


def commands(manual):
    """Each caption of the main window's tables is spoken of somewhere."""
    table = (ROOT / "app" / "Prikazy.cpp").read_text(encoding="utf-8")
    said = {caption for _, caption in manual.captions}
    for caption in re.findall(r'\{"(?:cmd|mnu)[^"]*",\s*"([^"]+)"', table):
        if caption not in said:
            yield 0, f"the manual does not speak of {caption!r}"


def main():
    manual = Manual(MANUAL.read_text(encoding="utf-8"))
    wrong = [finding for check in (pictures, links, captions, messages, keys, commands) for finding in check(manual)]
    for line, what in wrong:
        print(f"{MANUAL.name}:{line}: {what}")
    print(f"{len(manual.links)} links, {len(manual.pictures)} pictures, {len(manual.captions)} captions, "
          f"{len(manual.keys)} keys: {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
