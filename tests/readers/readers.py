"""What other programs read from workbooks: {path: [{(row, column): value}, one a sheet]}; empty cells left out."""
import csv
import json
import os
import shutil
import subprocess

import olefile
import xlrd

HERE = os.path.dirname(os.path.abspath(__file__))
SILENT = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "check": True, "timeout": 200}

# Some writers split a surrogate pair between two records; xlrd by itself ends there.
xlrd.book.unicode = lambda data, encoding: data.decode(encoding, "surrogatepass")


def workbook_stream(path):
    with olefile.OleFileIO(path) as container:
        return container.openstream("Workbook").read()


def book(path, **options):
    """Opens with xlrd; where it refuses a writer's container, as it stands in its workbook stream."""
    try:
        return xlrd.open_workbook(path, **options)
    except xlrd.compdoc.CompDocError:
        return xlrd.open_workbook(file_contents=workbook_stream(path), **options)


def with_xlrd(paths, _):
    out = {}
    for path in paths:
        sheets = book(path, formatting_info=True).sheets()
        out[path] = [{(row, column): sheet.cell_value(row, column) for row in range(sheet.nrows)
                      for column in range(sheet.row_len(row))
                      if sheet.cell_value(row, column) != ""}
                     for sheet in sheets]
    return out


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
    for path in paths:
        target = os.path.join(work, "gnumeric-" + os.path.basename(path)[:-4])
        subprocess.run(["ssconvert", "-S", "-T", "Gnumeric_stf:stf_assistant", "-O", "format=raw", path,
                        target + "-%s.csv"], **SILENT)
        out[path] = [from_csv("%s-%s.csv" % (target, name)) for name in worksheets(path)]
    return out


def with_sheetjs(paths, work, modules):
    output = os.path.join(work, "sheetjs.json")
    subprocess.run(["node", os.path.join(HERE, "read_sheetjs.js"), modules, output] + paths, **SILENT)
    with open(output, encoding="utf-8") as text:
        found = json.load(text)
    return {path: [{tuple(map(int, where.split(","))): value for where, value in cells.items() if value not in ("", None)}
                   for cells in map(sheets.get, worksheets(path))] for path, sheets in found.items()}


def installed(modules):
    """[(name, function of paths and a working folder, True when the program calculates formulas anew)]."""
    yield "xlrd", with_xlrd, False
    if shutil.which("soffice"):
        yield "LibreOffice", with_libreoffice, True
    if shutil.which("ssconvert"):
        yield "Gnumeric", with_gnumeric, True
    if shutil.which("node") and os.path.isdir(os.path.join(modules, "xlsx")):
        yield "SheetJS", lambda paths, work: with_sheetjs(paths, work, modules), False
