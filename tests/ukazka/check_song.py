#!/usr/bin/python3
"""Plays the demonstration and has other programs read back its song and its converted copies, cell by cell.

usage: check_song.py VIRTUAL_DISPLAY ZVONIKA_UKAZKA FOLDER SHEETJS_FOLDER [OPTION ...]
Options go to the demonstration.
Readers: xlrd, LibreOffice, Gnumeric, SheetJS. Those that are not installed are named and left out; ends with 77 without
xlrd or a virtual display.
"""
import os
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "readers"))
import readers

SONG = "Kočka leze dírou"
PHRASES = [  # tones, syllables, bellows
    ("c d e f g g", "Koč- ka le- ze dí- rou,", "Tlak"),
    ("a a g", "pes ok- nem,", "Tah"),
    ("a a g", "pes ok- nem,", "Tlak"),
    ("f f f f e e", "ne- bu- de- li pr- šet,", "Tah"),
    ("d d g", "ne- zmok- nem,", "Tlak"),
    ("f f f f e e", "ne- bu- de- li pr- šet,", "Tah"),
    ("d d c", "ne- zmok- nem.", "Tlak"),
]
BUTTON = {"c": 9, "d": 11, "e": 13, "f": 14, "g": 16, "a": 18}
FINGER = {"c": 2, "d": 3, "e": 4, "f": 3, "g": 4, "a": 5}
BASS = {"c": "C", "d": "G", "e": "C", "f": "F", "g": "C", "a": "F"}
COLUMNS = 23  # A to W
COPIES = [  # key, its tones for c1 d1 e1 f1 g1 a1, sheet
    ("G dur", "g, a, h, c1, d1, e1,", "Tonavox XII"),
    ("F dur", "f1, g1, a1, b1, c2, d2,", "G dur-C dur-F dur"),
]


def expected_rows():
    rows = []
    for tones, syllables, bellows in PHRASES:
        for tone, syllable in zip(tones.split(), syllables.split()):
            row = [""] * COLUMNS
            row[0], row[1], row[8], row[12] = syllable, tone + "1,", bellows, BASS[tone]
            row[21], row[22] = "l%d;%d\\" % (BUTTON[tone], FINGER[tone]), "C dur"
            rows.append(row)
    return rows


def converted(rows, key, tones):
    """The same song in another key: fingering is gone, basses stay."""
    spelling = dict(zip("c1, d1, e1, f1, g1, a1,".split(), tones.split()))
    return [row[:1] + [spelling[row[1]]] + row[2:21] + ["", key] for row in rows]


def songs():
    """File, sheet and rows of every song that the demonstration leaves."""
    rows = expected_rows()
    yield SONG, "Tonavox XII", rows
    for key, tones, sheet in COPIES:
        yield "%s %s" % (SONG, key), sheet, converted(rows, key, tones)


def table(cells):
    """As rows of texts, without what is empty at the end."""
    rows = [[""] * COLUMNS for _ in range(1 + max((row for row, _ in cells), default=-1))]
    for (row, column), value in cells.items():
        rows[row][column:column + 1] = [str(value)]
    return rows


def faults_in(found, wanted, reader):
    odd = [(number, pair) for number, pair in enumerate(zip(wanted, found), 1) if pair[0] != pair[1]]
    for number, (expected, row) in odd:
        print("%s, row %d: expected %r, found %r" % (reader, number, expected, row))
    if len(found) != len(wanted):
        print("%s: %d rows" % (reader, len(found)))
    return len(odd) + (len(found) != len(wanted))


def main():
    display, program, folder = sys.argv[1:4]
    if not shutil.which("xvfb-run"):
        print("SKIPPED: no virtual display")
        return readers.SKIPPED
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    subprocess.run([display, program] + sys.argv[5:] + [folder], check=True, timeout=300)
    pictures = [name for name in os.listdir(folder) if name.endswith(".png")]
    assert len(pictures) >= 22, pictures
    kept = os.path.join(os.path.abspath(folder), "domov", "Dokumenty", "Heligonka", "Zvonika")
    wanted = {os.path.join(kept, song + ".xls"): (sheet, rows) for song, sheet, rows in songs()}
    faults = 0
    for path, (sheet, _) in wanted.items():
        if readers.worksheets(path)[0] != sheet:
            faults += 1
            print("%s: sheets %r, expected %s" % (path, readers.worksheets(path), sheet))
    for reader, _, tables in readers.read_with_all(list(wanted), os.path.abspath(folder), sys.argv[4]):
        for path, (_, rows) in wanted.items():
            faults += faults_in(table(tables[path][0]), rows, reader + ", " + os.path.basename(path))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
