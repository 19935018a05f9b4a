#!/usr/bin/python3
"""Has other programs read the files that the engine writes, and compares every cell.

Usage: foreign_readers.py WRITE_XLS_SAMPLES FIXTURE_FOLDER
Readers: xlrd (bit by bit), LibreOffice and Gnumeric (as CSV); those that are not installed are named and left
out. Ends with 77 when none is. With olefile, the offsets within the workbook stream are checked as well.
"""
import csv
import glob
import os
import shutil
import struct
import subprocess
import sys
import tempfile

SKIPPED = 77
ERRORS = {0x2A: "#N/A", 0x07: "#DIV/0!"}
faults = []


def expected_cells(path):
    """{sheet name: {(row, column): description}} from the listing beside a sample."""
    sheets, cells = {}, None
    with open(path.replace(".xls", ".cells"), encoding="utf-8") as listing:
        for line in listing.read().split("\n"):
            if line.startswith("sheet "):
                cells = sheets.setdefault(line[6:], {})
            elif line:
                row, column, what = line.split(" ", 2)
                cells[int(row), int(column)] = what
    return sheets


def number(what):
    return struct.unpack(">d", bytes.fromhex(what[1:]))[0]


def complain(path, who, where, wanted, found):
    faults.append("%s: %s, %s: expected %.60r, found %.60r" % (os.path.basename(path), who, where, wanted, found))


def described(cell, xlrd):
    kind, value = cell.ctype, cell.value
    if kind in (xlrd.XL_CELL_NUMBER, xlrd.XL_CELL_DATE):
        return "n" + struct.pack(">d", value).hex()
    if kind == xlrd.XL_CELL_BOOLEAN:
        return "b%d" % value
    if kind == xlrd.XL_CELL_ERROR:
        return "e%d" % value
    return "t" + value if kind == xlrd.XL_CELL_TEXT else None


def check_with_xlrd(path, expected, xlrd):
    book = xlrd.open_workbook(path, formatting_info=True)
    if book.sheet_names() != list(expected):
        complain(path, "xlrd", "sheet names", list(expected), book.sheet_names())
    for sheet, cells in zip(book.sheets(), expected.values()):
        found = {}
        for row in range(sheet.nrows):
            for column in range(sheet.row_len(row)):
                what = described(sheet.cell(row, column), xlrd)
                if what is not None:
                    found[row, column] = what
        for where in sorted(set(found) | set(cells)):
            wanted = cells.get(where, "").removeprefix("f")
            if wanted != found.get(where, ""):
                complain(path, "xlrd", where, wanted, found.get(where))


def same_in_csv(what, text):
    if what[0] == "f":
        return True  # these programs calculate anew
    if what[0] == "t":
        return text == what[1:]
    if what[0] == "e":
        return text == ERRORS.get(int(what[1:]), text)
    if what[0] == "b":
        return text in (("1", "TRUE") if what == "b1" else ("0", "FALSE"))
    try:
        wanted = number(what)
        return abs(float(text) - wanted) <= 1e-12 * abs(wanted)
    except ValueError:
        return False


def check_csv(path, who, table, cells):
    with open(table, encoding="utf-8", newline="") as lines:
        rows = list(csv.reader(lines))
    for (row, column), what in cells.items():
        text = rows[row][column] if row < len(rows) and column < len(rows[row]) else ""
        if not same_in_csv(what, text):
            complain(path, who, (row, column), what, text)


def check_with_gnumeric(path, expected, work):
    table = os.path.join(work, "gnumeric.csv")
    name = list(expected)[0].replace("'", "\\'")
    subprocess.run(["ssconvert", "-T", "Gnumeric_stf:stf_assistant", "-O",
                    "sheet='%s' format=raw" % name, path, table],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    check_csv(path, "Gnumeric", table, list(expected.values())[0])


def check_with_libreoffice(paths, work):
    """One start for all files; the first sheet of each, cells unformatted."""
    options = "44,34,76,1,,0,false,false,false,false,false,1"
    subprocess.run(["soffice", "-env:UserInstallation=file://" + work + "/lo", "--headless", "--convert-to",
                    "csv:Text - txt - csv (StarCalc):" + options, "--outdir", work] + paths,
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=200)
    for path in paths:
        expected = expected_cells(path)
        tables = glob.glob(os.path.join(glob.escape(work), os.path.basename(path)[:-4] + "*.csv"))
        tables = [t for t in tables if os.path.basename(t)[len(os.path.basename(path)) - 4] in "-."]
        if not tables:
            complain(path, "LibreOffice", "file", "a table", "none")
            continue
        check_csv(path, "LibreOffice", sorted(tables)[0], list(expected.values())[0])


CELLS = {0x06, 0xBD, 0xBE, 0xD6, 0xFD, 0x201, 0x203, 0x204, 0x205, 0x27E}


def records(stream):
    at, out = 0, []
    while at + 4 <= len(stream):
        kind, size = struct.unpack_from("<HH", stream, at)
        if kind == 0:
            break
        out.append((at, kind, stream[at + 4:at + 4 + size]))
        at += 4 + size
    return out


def shared_string_starts(found):
    """Offset and offset within its record of every shared string, and how many the table promises."""
    chunks = []
    for at, kind, data in found:
        if kind == 0xFC or (chunks and kind == 0x3C):
            chunks.append((at, data))
        elif chunks:
            break
    if not chunks:
        return [], (0, 0)
    counts = struct.unpack_from("<II", chunks[0][1])
    starts, chunk, at = [], 0, 8
    for _ in range(counts[1]):
        if at >= len(chunks[chunk][1]):
            chunk, at = chunk + 1, 0
        base, data = chunks[chunk]
        starts.append((base + 4 + at, 4 + at))
        length, flags = struct.unpack_from("<HB", data, at)
        at += 3
        runs = phonetic = 0
        if flags & 8:
            runs, = struct.unpack_from("<H", data, at)
            at += 2
        if flags & 4:
            phonetic, = struct.unpack_from("<I", data, at)
            at += 4
        while length:
            if at >= len(data):
                chunk, at = chunk + 1, 1
                data = chunks[chunk][1]
                flags = data[0]
            width = 2 if flags & 1 else 1
            step = min(length, (len(data) - at) // width)
            if width == 2 and step and step < length:
                last, = struct.unpack_from("<H", data, at + 2 * step - 2)
                if 0xD800 <= last < 0xDC00:
                    faults.append("a surrogate pair is split at %d" % (base + at))
            length -= step
            at += step * width
        rest = 4 * runs + phonetic
        while rest:
            if at >= len(data):
                chunk, at = chunk + 1, 0
                data = chunks[chunk][1]
            step = min(rest, len(data) - at)
            rest -= step
            at += step
    return starts, counts


def check_structure(path, fixture, olefile):
    container = olefile.OleFileIO(path, raise_defects=olefile.DEFECT_INCORRECT)
    found = records(container.openstream("Workbook").read())
    kinds = {at: kind for at, kind, _ in found}
    starts, (total, unique) = shared_string_starts(found)
    references = sum(kind == 0xFD for _, kind, _ in found)
    if starts and total != references:
        complain(path, "structure", "references in Sst", references, total)
    for at, kind, data in found:
        if len(data) > 8224:
            complain(path, "structure", at, "at most 8224 bytes", len(data))
        if kind == 0x85 and kinds.get(struct.unpack_from("<I", data)[0]) != 0x809:
            complain(path, "structure", at, "a Bof record", "none")
        if kind == 0x20B:
            for place, in struct.iter_unpack("<I", data[16:]):
                if kinds.get(place) != 0xD7:
                    complain(path, "structure", at, "a DbCell record", place)
        if kind == 0xFF and len(data) > 2:
            step, = struct.unpack_from("<H", data)
            entries = [(a, b) for a, b, _ in struct.iter_unpack("<IHH", data[2:])]
            if entries != starts[::step]:
                complain(path, "structure", "ExtSst", starts[::step][:3], entries[:3])
    old = olefile.OleFileIO(fixture) if fixture else None
    theirs = records(old.openstream("Workbook").read()) if old and old.exists("Workbook") else []
    check_blocks(path, found, {data for _, kind, data in theirs if kind == 0xD7})


def check_blocks(path, found, foreign):
    """Row blocks that another writer has described keep its description and are not checked."""
    block = []
    for at, kind, data in found:
        if kind == 0x208 or kind in CELLS:
            block.append((at, kind, struct.unpack_from("<H", data)[0]))
        if kind != 0xD7:
            continue
        if data in foreign:
            block = []
            continue
        first, = struct.unpack_from("<I", data)
        if not block or at - first != block[0][0]:
            complain(path, "structure", at, block[:1], at - first)
        firsts = {}
        for place, cell, row in block:
            if cell in CELLS:
                firsts.setdefault(row, place)
        place, pointed = at - first + 20, []
        for delta, in struct.iter_unpack("<H", data[4:]):
            place = (place + delta) & 0xFFFFFFFF
            pointed.append(place)
        if pointed != [firsts[row] for row in sorted(firsts)]:
            complain(path, "structure", "DbCell at %d" % at, sorted(firsts.values())[:4], pointed[:4])
        block = []


def optional(name):
    try:
        return __import__(name)
    except ImportError:
        print("not installed:", name)
        return None


def main():
    writer, fixtures = sys.argv[1], sorted(glob.glob(os.path.join(sys.argv[2], "*.xls")))
    xlrd, olefile = optional("xlrd"), optional("olefile")
    programs = [name for name in ("ssconvert", "soffice") if shutil.which(name)]
    if not xlrd and not programs:
        print("SKIPPED: none of xlrd, ssconvert, soffice is installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as work:
        subprocess.run([writer, work] + fixtures, check=True)
        paths = sorted(glob.glob(os.path.join(work, "*.xls")))
        for path in paths:
            if olefile:
                fixture = os.path.join(sys.argv[2], os.path.basename(path).replace("changed-", ""))
                check_structure(path, fixture if os.path.exists(fixture) else None, olefile)
            if xlrd:
                check_with_xlrd(path, expected_cells(path), xlrd)
            if "ssconvert" in programs:
                check_with_gnumeric(path, expected_cells(path), work)
        if "soffice" in programs:
            check_with_libreoffice(paths, work)
    print("%d files; readers: %s" % (len(paths), ", ".join((["xlrd"] if xlrd else []) + programs)))
    print("\n".join(faults[:40]) or "no faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
