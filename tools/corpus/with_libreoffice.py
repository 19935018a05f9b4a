#!/usr/bin/python3
"""Song files of LibreOffice, converted from flat OpenDocument. Usage: with_libreoffice.py TARGET_FOLDER SONG"""
import os
import subprocess
import sys
import tempfile

HEAD = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:automatic-styles><style:style style:name="zluta" style:family="table-cell">
<style:table-cell-properties fo:background-color="#ffff00"/><style:text-properties fo:font-weight="bold"/></style:style>
</office:automatic-styles><office:body><office:spreadsheet>"""
TAIL = """<table:table table:name="Druhý list"><table:table-row>%s</table:table-row></table:table>%s
</office:spreadsheet></office:body></office:document>"""
NAMES = """<table:named-expressions><table:named-range table:name="Doba" table:base-cell-address="$Píseň.$A$1"
 table:cell-range-address="$Píseň.$E$1:.$E$12"/></table:named-expressions>"""


def cell(value, attributes="", inside=""):
    if isinstance(value, bool):
        kind = 'office:value-type="boolean" office:boolean-value="%s"' % str(value).lower()
    elif isinstance(value, str):
        kind, inside = 'office:value-type="string"', inside + "<text:p>%s</text:p>" % value
    elif value is None:
        kind = ""
    else:
        kind = 'office:value-type="float" office:value="%r"' % value
    return "<table:table-cell %s %s>%s</table:table-cell>" % (kind, attributes, inside)


def formula(text, value):
    return cell(value, 'table:formula="of:=%s"' % text)


def row(cells):
    return "<table:table-row>%s</table:table-row>" % "".join(cells)


def decorations():
    yellow = 'table:style-name="zluta"'
    note = "<office:annotation><text:p>poznámka ř</text:p></office:annotation>"
    return [row(cell(11 * c) for c in range(6)), row(cell(None, yellow) for _ in range(6)),
            row([formula('[.A1]&amp;&quot;!&quot;', "Koč-!"), formula("SUM([.E1:.E6])", 0.475), formula("1/0", 0)]),
            row(formula("[.F%d]*2" % (i + 1), 2 * i) for i in range(4)),
            row([cell("sloučeno", yellow + ' table:number-columns-spanned="3" table:number-rows-spanned="2"', note)]),
            row([cell('tu<text:span text:style-name="T">č</text:span>ně')])]


def document(song, rows, decorated, texts):
    lines = []
    for i in range(rows):
        line = song[i % len(song)]
        cells = [cell(text) for text in line[:4]] + [cell(float(line[4])), cell(i), cell(i % 2 == 0)]
        lines.append(row(cells + [cell(None)] + [cell(texts[i])] if i < len(texts) else cells))
    lines += decorations() if decorated else []
    rest = '<table:table table:name="Prázdný"/>' + NAMES if decorated else ""
    return HEAD + '<table:table table:name="Píseň">%s</table:table>' % "".join(lines) + TAIL % (cell("druhý"), rest)


def main():
    target, work = sys.argv[1], tempfile.mkdtemp()
    with open(sys.argv[2], encoding="utf-8") as lines:
        song = [line.rstrip("\n").split("\t") for line in lines]
    long = ["".join(song[i % 12][0] for i in range(n)) for n in (70, 1300)] + ["x" * 9000, "𝄞" * 4200, "ř" * 4112]
    paths = []
    for name, rows, decorated, texts in (("plain", 12, False, ()), ("rich", 12, True, ()), ("long", 12, False, long),
                                         ("rows500", 500, False, ())):
        paths.append(os.path.join(work, "libreoffice-%s.fods" % name))
        with open(paths[-1], "w", encoding="utf-8") as out:
            out.write(document(song, rows, decorated, texts))
    subprocess.run(["soffice", "-env:UserInstallation=file://" + work + "/lo", "--headless", "--convert-to",
                    "xls:MS Excel 97", "--outdir", target] + paths, check=True, stdout=subprocess.DEVNULL)


if __name__ == "__main__":
    main()
