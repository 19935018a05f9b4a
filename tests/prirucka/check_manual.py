#!/usr/bin/env python3
"""Holds the manual against the program.

usage: check_manual.py SOURCE_DIR
Every link leads to a place of the page and every picture exists, shown at its size; every caption (<em>), every
message („...“ in the tables of messages) and every key is one that the sources know; every command of the
main window is spoken of. Prints what is wrong as line: text and exits with 1 when there is something.
"""
import html.parser
import pathlib
import re
import struct
import sys
import urllib.parse

ROOT = pathlib.Path(sys.argv[1])
MANUAL = ROOT / "resources" / "Tamík.htm"
CAPTION_SOURCES = ["app/*.cpp", "app/ui/*.cpp", "*/ui/*.cpp", "*/*/ui/*.cpp", "*/*.h"]
MESSAGE_SOURCES = ["app/*.cpp", "playing/**/*.cpp", "spreadsheet/**/*.cpp", "song/*.cpp", "board/*.cpp", "theory/*.cpp", "conversion/*.cpp", "aids/*.cpp",
                   "*/*.h"]
LITERAL = re.compile(r'(?:u|u8)?"((?:[^"\\\n]|\\.)*)"(?:\s*(?:u|u8)?"((?:[^"\\\n]|\\.)*)")*')
PIECE = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
# Names of keys as the manual prints them, and as the toolkit spells them.
KEYS = {"←": "Left", "→": "Right", "↑": "Up", "↓": "Down", "Mezerník": "Space", "Esc": "Escape", "Enter": "Return"}
KNOWN_EVERYWHERE = {"Tab", "Enter", "Esc", "Shift", "Shift+Enter", "Delete", "Insert", "Mezerník", "PageDown", "PageUp",
                    "#", "b", "n", "+", "-", "0", "←", "→", "↑", "↓", "F2", "F10"}


class Manual(html.parser.HTMLParser):
    """What the page names, each with its line."""

    def __init__(self):
        super().__init__()
        self.ids, self.links, self.pictures = [], [], []
        self.texts = {"em": [], "kbd": []}
        self.first_cells = []
        self.open, self.cell, self.section = None, None, ""

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        line = self.getpos()[0]
        if "id" in given:
            self.ids.append((line, given["id"]))
            self.section = given["id"]
        if tag == "a":
            self.links.append((line, given.get("href", "")))
        if tag == "img":
            self.pictures.append((line, given))
        if tag in self.texts:
            self.open = [tag, line, ""]
        if tag == "tr":
            self.cell = 0
        if tag == "td":
            self.cell += 1
            if self.cell == 1:
                self.first_cells.append([line, self.section, ""])

    def handle_endtag(self, tag):
        if self.open and tag == self.open[0]:
            self.texts[tag].append((self.open[1], " ".join(self.open[2].split())))
            self.open = None

    def handle_data(self, data):
        if self.open:
            self.open[2] += data
        if self.cell == 1 and self.first_cells:
            self.first_cells[-1][2] += data.replace("\n", " ")


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
    for line, caption in manual.texts["em"]:
        if caption not in known:
            yield line, f"no control is captioned {caption!r}"


def messages(manual):
    known = "\n".join(literals(MESSAGE_SOURCES))
    for line, section, cell in manual.first_cells:
        if section != "hlaseni":
            continue
        for quoted in re.findall("„([^“]*)“", cell):
            for part in re.split("…|'9'", quoted):
                if part.strip(" :") and part.strip(" :") not in known:
                    yield line, f"no message says {part.strip()!r}"


def keys(manual):
    known = literals(CAPTION_SOURCES)
    code = "\n".join(file.read_text(encoding="utf-8") for pattern in CAPTION_SOURCES for file in ROOT.glob(pattern))
    for line, key in manual.texts["kbd"]:
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
    said = {caption for _, caption in manual.texts["em"]}
    for caption in re.findall(r'\{"(?:cmd|mnu)[^"]*",\s*"([^"]+)"', table):
        if caption not in said:
            yield 0, f"the manual does not speak of {caption!r}"


def main():
    manual = Manual()
    manual.feed(MANUAL.read_text(encoding="utf-8"))
    wrong = [finding for check in (pictures, links, captions, messages, keys, commands) for finding in check(manual)]
    for line, what in wrong:
        print(f"{MANUAL.name}:{line}: {what}")
    print(f"{len(manual.links)} links, {len(manual.pictures)} pictures, {len(manual.texts['em'])} captions, "
          f"{len(manual.texts['kbd'])} keys: {len(wrong)} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
