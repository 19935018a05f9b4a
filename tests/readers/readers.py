"""What other programs read from workbooks: {path: [{(row, column): value}, one a sheet]}; empty cells left out.

Values are numbers and texts; of xlrd also (kind, code) for truth values and errors, of tables in CSV texts alone.
"""
import concurrent.futures
import csv
import json
import os
import shutil
import struct
import subprocess
import sys

SKIPPED = 77
try:
    import olefile
    import xlrd
except ImportError as missing:
    print("SKIPPED: %s is not installed" % missing.name)
    sys.exit(SKIPPED)

HERE = os.path.dirname(os.path.abspath(__file__))
SILENT = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "check": True, "timeout": 200}
ERRORS = {0x2A: "#N/A", 0x07: "#DIV/0!"}

# Some writers split a surrogate pair between two records; xlrd by itself ends there.
xlrd.book.unicode = lambda data, encoding: data.decode(encoding, "surrogatepass")


def workbook_stream(path):
    with olefile.OleFileIO(path, raise_defects=olefile.DEFECT_INCORRECT) as container:
        return container.openstream("Workbook").read()


def book(path, **options):
    """Opens with xlrd; where it refuses a writer's container, as it stands in its workbook stream."""
    with open(os.devnull, "w") as silence:
        try:
            return xlrd.open_workbook(path, logfile=silence, **options)
        except xlrd.compdoc.CompDocError:
            return xlrd.open_workbook(file_contents=workbook_stream(path), logfile=silence, **options)


def with_xlrd(paths, _):
    plain = (xlrd.XL_CELL_NUMBER, xlrd.XL_CELL_DATE, xlrd.XL_CELL_TEXT)
    return {path: [{(row, column): cell.value if cell.ctype in plain else (cell.ctype, cell.value)
                    for row in range(sheet.nrows) for column, cell in enumerate(sheet.row(row)) if cell.value != ""}
                   for sheet in book(path, formatting_info=True).sheets()] for path in paths}


def worksheets(path):
    """Names, chart sheets left out."""
    return book(path).sheet_names()


def from_csv(path):
    with open(path, encoding="utf-8", newline="") as table:
        return {(row, column): text for row, line in enumerate(csv.reader(table))
                for column, text in enumerate(line) if text}


def with_libreoffice(paths, work):
    """One start for all files."""
    target = os.path.join(work, "libreoffice")
    subprocess.run(["soffice", "-env:UserInstallation=file://" + work + "/profile", "--headless", "--convert-to",
                    "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,false,false,false,false,-1",
                    "--outdir", target] + paths, **SILENT)
    return {path: [from_csv("%s/%s-%s.csv" % (target, os.path.basename(path)[:-4], name))
                   for name in worksheets(path)] for path in paths}


def with_gnumeric(paths, work):
    out = {}
    for path in paths:  # it takes one file a start, and little time
        target = os.path.join(work, "gnumeric-" + os.path.basename(path)[:-4])
        subprocess.run(["ssconvert", "-S", "-T", "Gnumeric_stf:stf_assistant", "-O", "format=raw", path,
                        target + "-%s.csv"], **SILENT)
        out[path] = [from_csv("%s-%s.csv" % (target, name)) for name in worksheets(path)]
    return out


def with_sheetjs(paths, work, modules):
    output = os.path.join(work, "sheetjs.json")
    subprocess.run(["node", os.path.join(HERE, "read_sheetjs.js"), os.path.abspath(modules), output] + paths, **SILENT)
    with open(output, encoding="utf-8") as text:
        found = json.load(text)
    return {path: [{tuple(map(int, where.split(","))): value for where, value in cells.items() if value not in ("", None)}
                   for cells in map(sheets.get, worksheets(path))] for path, sheets in found.items()}


def read_with_all(paths, work, modules):
    """Yields (name of the program, True when it calculates formulas anew, its tables); all programs run at once, each over
    all files. Those that are not installed are named and left out."""
    programs = (("xlrd", with_xlrd, False, True),
                ("LibreOffice", with_libreoffice, True, shutil.which("soffice")),
                ("Gnumeric", with_gnumeric, True, shutil.which("ssconvert")),
                ("SheetJS", lambda paths, work: with_sheetjs(paths, work, modules), False,
                 shutil.which("node") and os.path.isdir(os.path.join(modules, "xlsx"))))
    with concurrent.futures.ThreadPoolExecutor() as pool:
        running = [(name, calculates, here and pool.submit(read, paths, work)) for name, read, calculates, here in programs]
        for name, calculates, result in running:
            if not result:
                print("SKIPPED: %s is not installed" % name)
                continue
            tables = result.result()
            print("%s: %d cells" % (name, sum(len(sheet) for sheets in tables.values() for sheet in sheets)))
            yield name, calculates, tables


def is_value(found, what):
    """Whether a program has read "n" and a number, "t" and a text, "b" and 0 or 1, "e" and a code, or "-" for nothing: to the
    bit, but for numbers in CSV."""
    kind, rest = what[0], what[1:]
    if kind == "-" or what == "t":
        return found is None
    if kind == "t":
        return found == rest
    if kind == "b":
        return found in ((4, int(rest)), rest, ("FALSE", "TRUE")[int(rest)], bool(int(rest)))
    if kind == "e":
        return found in ((5, int(rest)), ERRORS.get(int(rest)), int(rest))
    if isinstance(found, (int, float)):
        return struct.pack("<d", found) == struct.pack("<d", float(rest))
    try:
        return abs(float(found) - float(rest)) <= 1e-12 * abs(float(rest))
    except (TypeError, ValueError):
        return False
