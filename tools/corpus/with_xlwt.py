#!/usr/bin/python3
"""Song files of xlwt. Usage: with_xlwt.py TARGET_FOLDER SONG"""
import os
import sys

import xlwt


def text_of(song, count):
    return "".join(song[i % len(song)][0] for i in range(count))


def fill(sheet, song, rows):
    for row in range(rows):
        line = song[row % len(song)]
        for column, text in enumerate(line[:4]):
            sheet.write(row, column, text)
        sheet.write(row, 4, float(line[4]))
        sheet.write(row, 5, row)
        sheet.write(row, 6, row % 2 == 0)


def decorate(book, sheet):
    bold = xlwt.easyxf("font: bold on, name Times New Roman; pattern: pattern solid, fore_colour yellow; borders: bottom thin")
    day = xlwt.easyxf(num_format_str="D. MMMM YYYY")
    for column in range(6):
        sheet.write(13, column, column * 11)
        sheet.write(14, column, None, bold)
    book.add_sheet("Prázdný")
    sheet.write(15, 0, xlwt.Formula('A1&"!"'))
    sheet.write(15, 1, xlwt.Formula("SUM(E1:E6)"), bold)
    sheet.write(15, 2, xlwt.Formula("1/0"))
    sheet.write(15, 4, xlwt.Formula("Prázdný!A1+1"))
    sheet.write_merge(17, 18, 0, 2, "sloučeno", bold)
    sheet.write_rich_text(19, 0, (("ne", xlwt.easyfont("bold on")), ("tučně", xlwt.easyfont("italic on"))))
    sheet.write(20, 0, 45000.5, day)
    sheet.write(60, 1, "daleko")
    sheet.row(5).set_style(bold)
    sheet.col(0).width = 6000
    sheet.col(8).set_style(bold)
    sheet.set_panes_frozen(True)
    sheet.set_horz_split_pos(1)
    sheet.set_vert_split_pos(1)
    sheet.header_str = b"&CZpevnik"


def write(path, song, rows=12, decorated=False, texts=()):
    book = xlwt.Workbook(encoding="utf-8")
    sheet = book.add_sheet("Píseň")
    fill(sheet, song, rows)
    for row, text in enumerate(texts):
        sheet.write(row, 8, text)
    if decorated:
        decorate(book, sheet)
    other = book.add_sheet("Druhý list")
    other.write(0, 0, "druhý")
    other.write(2, 1, 2)
    book.save(path)


def main():
    target = sys.argv[1]
    with open(sys.argv[2], encoding="utf-8") as lines:
        song = [line.rstrip("\n").split("\t") for line in lines]
    long = [text_of(song, 70), text_of(song, 1300), "x" * 9000, "𝄞" * 4200, "ř" * 4112]
    write(os.path.join(target, "xlwt-plain.xls"), song)
    write(os.path.join(target, "xlwt-rich.xls"), song, decorated=True)
    write(os.path.join(target, "xlwt-long.xls"), song, texts=long)
    write(os.path.join(target, "xlwt-rows500.xls"), song, rows=500)


if __name__ == "__main__":
    main()
