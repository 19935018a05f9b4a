#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QStringList>

namespace zvonika {

/// What the cells of one sheet hold.
struct SheetImage {
    QString name;
    CellBlock cells;               ///< from A1 on, as far as the sheet is used; rows of equal length
    QVector<QStringList> formulas; ///< of the same cells, "" where one has none; empty where no cell has one
    /// Last row and column that are known; the rest of a sheet too large to be read is not.
    CellPosition known{lastRow, lastColumn};

    CellValue value(CellPosition cell) const; ///< nothing beyond the used part
    QString formula(CellPosition cell) const; ///< "" where there is none
    /// The cell gets a value, and loses its formula.
    void put(CellPosition cell, const CellValue& value);
    /// Rows from `row` on go down (up) by one; formulas go with them as they are.
    void moveRows(int row, bool down);
    CellPosition used() const; ///< last row and column of `cells`; 0 where there are none
};

/// A workbook as it stands in the spreadsheet that has it open.
struct WorkbookImage {
    int id = 0;            ///< number of the open workbook, which no other gets in this run; 0: there is none
    QString name;          ///< file name without folder, or what one that was never saved is called
    QString path;          ///< native full name; "" for one that was never saved
    bool modified = false; ///< it differs from its file
    QVector<SheetImage> sheets; ///< in workbook order, hidden ones too

    bool hasSheet(int sheet) const { return sheet >= 1 && sheet <= sheets.size(); } ///< from 1
};

} // namespace zvonika
