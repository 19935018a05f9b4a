"""xlwt_copy.py IN OUT: changes ten cells, in the one way that these libraries offer: all cells are copied."""
import sys

import xlrd
import xlwt

book = xlrd.open_workbook(sys.argv[1])
copy = xlwt.Workbook()
for sheet in book.sheets():
    target = copy.add_sheet(sheet.name)
    step = sheet.nrows // 10
    changes = {(i * step, i % 3): "změna%d" % i for i in range(10)} if sheet.number == 0 else {}
    for row in range(sheet.nrows):
        for column in range(sheet.row_len(row)):
            value = changes.get((row, column), sheet.cell_value(row, column))
            if value != "":
                target.write(row, column, value)
copy.save(sys.argv[2])
