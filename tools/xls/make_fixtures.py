#!/usr/bin/python3
"""Writes the .xls files of other programs that the engine's tests open.

Usage: make_fixtures.py TARGET_FOLDER [FOLDER_WITH_SHEETJS]
Needs xlwt, soffice and ssconvert, and node with the package "xlsx" for SheetJS. All files hold the same song
sheet; xlwt.xls and libreoffice.xls hold more (formulas, frozen panes, merged cells, a comment, a second sheet).
"""
import os
import subprocess
import sys
import tempfile

import xlwt

SONG = [
    ["Koč", "c1", 1, 0.5, True],
    ["ka", "d1", 2, -1.25, False],
    ["le", "e1", 3, 1e300, True],
    ["ze", "f1", 4, 1234567.891, False],
    ["𝄞 dí", "g1", 5, 0.1, True],
    ["rou,", "g1", 6, -536870912, True],
]


def write_xlwt(path):
    book = xlwt.Workbook(encoding="utf-8")
    sheet = book.add_sheet("Píseň")
    bold = xlwt.easyxf("font: bold on; pattern: pattern solid, fore_colour yellow")
    for r, row in enumerate(SONG):
        for c, value in enumerate(row):
            sheet.write(r, c, value)
    for c in range(6):
        sheet.write(7, c, c * 11)
        sheet.write(8, c, None, bold)
    sheet.write(9, 0, xlwt.Formula('A1&"!"'))
    sheet.write(9, 1, xlwt.Formula("SUM(C1:C6)"), bold)
    sheet.write_merge(11, 12, 0, 2, "sloučeno", bold)
    sheet.write_rich_text(13, 0, (("ne", xlwt.easyfont("bold on")), ("tučně", xlwt.easyfont("italic on"))))
    sheet.write(40, 1, "daleko")
    sheet.row(5).set_style(bold)
    sheet.col(0).width = 6000
    sheet.col(3).set_style(bold)
    sheet.set_panes_frozen(True)
    sheet.set_horz_split_pos(1)
    other = book.add_sheet("Druhý")
    other.write(0, 0, "druhý list")
    book.save(path)


FODS = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet><table:table table:name="Píseň">%s</table:table>
<table:table table:name="Druhý"><table:table-row><table:table-cell office:value-type="string">
<text:p>druhý list</text:p></table:table-cell></table:table-row></table:table>
</office:spreadsheet></office:body></office:document>"""


def fods_cell(value, note=False):
    comment = "<office:annotation><text:p>poznámka</text:p></office:annotation>" if note else ""
    if isinstance(value, bool):
        kind = 'office:value-type="boolean" office:boolean-value="%s"' % str(value).lower()
    elif isinstance(value, str):
        kind = 'office:value-type="string"'
        comment += "<text:p>%s</text:p>" % value
    else:
        kind = 'office:value-type="float" office:value="%r"' % value
    return "<table:table-cell %s>%s</table:table-cell>" % (kind, comment)


def fods(extra):
    rows = []
    for r, row in enumerate(SONG):
        cells = "".join(fods_cell(v, extra and r == 1 and c == 0) for c, v in enumerate(row))
        if extra:
            cells += '<table:table-cell table:formula="of:=[.C%d]*2" office:value-type="float"/>' % (r + 1)
            cells += '<table:table-cell table:formula="of:=[.A%d]&amp;[.B%d]" office:value-type="string"/>' % (r + 1, r + 1)
        rows.append("<table:table-row>%s</table:table-row>" % cells)
    return FODS % "".join(rows)


def write_libreoffice(path, work):
    source = os.path.join(work, os.path.basename(path).replace(".xls", ".fods"))
    with open(source, "w", encoding="utf-8") as out:
        out.write(fods(True))
    subprocess.run(["soffice", "-env:UserInstallation=file://" + work + "/lo", "--headless", "--convert-to", "xls",
                    "--outdir", os.path.dirname(path), source], check=True, stdout=subprocess.DEVNULL)


def write_gnumeric(path, work):
    plain = os.path.join(work, "song.xls")
    write_xlwt(plain)
    subprocess.run(["ssconvert", "-T", "Gnumeric_Excel:excel_biff8", plain, path], check=True)


SHEETJS = """
const X = require('xlsx');
const book = X.utils.book_new();
X.utils.book_append_sheet(book, X.utils.aoa_to_sheet(%s), 'Píseň');
X.utils.book_append_sheet(book, X.utils.aoa_to_sheet([['druhý list']]), 'Druhý');
X.writeFile(book, process.argv[1], {bookType: 'biff8', bookSST: true});
"""


def write_sheetjs(path, modules):
    import json
    subprocess.run(["node", "-e", SHEETJS % json.dumps(SONG), path], check=True, cwd=modules)


def main():
    target = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as work:
        write_xlwt(os.path.join(target, "xlwt.xls"))
        write_libreoffice(os.path.join(target, "libreoffice.xls"), work)
        write_gnumeric(os.path.join(target, "gnumeric.xls"), work)
        if len(sys.argv) > 2:
            write_sheetjs(os.path.join(target, "sheetjs.xls"), sys.argv[2])


if __name__ == "__main__":
    main()
