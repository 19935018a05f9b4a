#!/usr/bin/python3
"""Plays the demonstration and has other programs read back its song and its converted copies, cell by cell.

usage: check_song.py VIRTUAL_DISPLAY ZVONIKA_UKAZKA FOLDER SHEETJS_FOLDER [OPTION ...]
Options go to the demonstration.
Readers: xlrd, LibreOffice, Gnumeric, SheetJS. Those that are not installed are named and left out; ends with 77 when
none is, or when there is no virtual display.
"""
import csv
import os
import shutil
import subprocess
import sys

SKIPPED = 77
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
    assert len(rows) == 30
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


def padded(rows):
    return [(row + [""] * COLUMNS)[:COLUMNS] for row in rows]


def with_xlrd(path, _, name):
    import xlrd
    sheet = xlrd.open_workbook(path).sheet_by_index(0)
    assert sheet.name == name, sheet.name
    return [[str(value) for value in sheet.row_values(row)] for row in range(sheet.nrows)]


def csv_rows(path):
    with open(path, encoding="utf-8", newline="") as table:
        return list(csv.reader(table))


def with_libreoffice(path, folder, _):
    profile = "-env:UserInstallation=file://" + os.path.join(folder, "office")
    subprocess.run(["soffice", profile, "--headless", "--convert-to", "csv:Text - txt - csv (StarCalc):44,34,76,1",
                    "--outdir", folder, path], check=True, capture_output=True, timeout=150)
    return csv_rows(os.path.join(folder, os.path.basename(path)[:-3] + "csv"))


def with_gnumeric(path, folder, _):
    target = os.path.join(folder, "gnumeric.csv")
    subprocess.run(["ssconvert", path, target], check=True, capture_output=True, timeout=60)
    return csv_rows(target)


def with_sheetjs(path, folder, _):
    script = ("const X=require('xlsx');const b=X.readFile(process.argv[1]);"
              "const s=b.Sheets[b.SheetNames[0]];"
              "console.log(JSON.stringify(X.utils.sheet_to_json(s,{header:1,defval:''})))")
    done = subprocess.run(["node", "-e", script, path], check=True, capture_output=True, timeout=60,
                          env={**os.environ, "NODE_PATH": SHEETJS})
    import json
    return [[str(value) for value in row] for row in json.loads(done.stdout)]


def installed():
    try:
        import xlrd  # noqa: F401
        yield "xlrd", with_xlrd
    except ImportError:
        print("SKIPPED: xlrd")
    for name, program, reader in (("LibreOffice", "soffice", with_libreoffice),
                                  ("Gnumeric", "ssconvert", with_gnumeric)):
        if shutil.which(program):
            yield name, reader
        else:
            print("SKIPPED:", name)
    if shutil.which("node") and os.path.isdir(os.path.join(SHEETJS, "xlsx")):
        yield "SheetJS", with_sheetjs
    else:
        print("SKIPPED: SheetJS")


def faults_in(found, wanted, reader):
    while found and not any(found[-1]):
        found.pop()
    faults = 0
    for number, (expected, row) in enumerate(zip(wanted, found), 1):
        if expected != row:
            faults += 1
            print("%s, row %d: expected %r, found %r" % (reader, number, expected, row))
    if len(found) != len(wanted):
        faults += 1
        print("%s: %d rows" % (reader, len(found)))
    return faults


def main():
    display, program, folder = sys.argv[1:4]
    if not shutil.which("xvfb-run"):
        print("SKIPPED: no virtual display")
        return SKIPPED
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    subprocess.run([display, program] + sys.argv[5:] + [folder], check=True, timeout=300)
    pictures = [name for name in os.listdir(folder) if name.endswith(".png")]
    assert len(pictures) >= 22, pictures
    kept = os.path.join(folder, "domov", "Dokumenty", "Heligonka", "Zvonika")
    faults, readers = 0, 0
    for name, reader in installed():
        readers += 1
        for song, sheet, rows in songs():
            found = padded(reader(os.path.join(kept, song + ".xls"), folder, sheet))
            faults += faults_in(found, rows, name + ", " + song)
            print(name, "has read", len(found), "rows of", song)
    if not readers:
        return SKIPPED
    return 1 if faults else 0


if __name__ == "__main__":
    SHEETJS = sys.argv[4]
    sys.exit(main())
