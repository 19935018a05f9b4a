#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"
#include "spreadsheet/xls/Workbook.h"

#include <QString>

#include <vector>

namespace zvonika {

/// The sheets of a workbook and their cells. Sheets, rows and columns count from 1; a sheet or cell that does
/// not exist is a caller's error (std::out_of_range). Refusals are AutomationError 1004 with a sentence for
/// the user.
///
/// What is changed here is recorded nowhere and nobody is told: that is for `Editing`.
class SheetCells {
public:
    explicit SheetCells(xls::Workbook book) : book_(std::move(book)) {}

    int sheetCount() const;
    void requireSheet(int sheet) const;
    QString sheetName(int sheet) const;
    /// The sheets that are not hidden, in their order; all of them where none is to be seen.
    std::vector<int> visibleSheets() const;
    CellValue value(int sheet, CellPosition cell) const;
    bool isFormula(int sheet, CellPosition cell) const;
    CellBlock block(int sheet, const CellRange& range) const;
    QString displayText(int sheet, CellPosition cell) const; ///< as it stands in the sheet: "3,5", "PRAVDA"
    QString editText(int sheet, CellPosition cell) const;    ///< as a cell editor shows it: "3,5", "'15"
    int usedRows(int sheet) const;                   ///< last row that holds a value; 0 in an empty sheet
    int usedColumns(int sheet) const;                ///< last column that holds a value
    double columnWidth(int sheet, int column) const; ///< in characters of the default font

    /// Refuses a part of an array formula.
    void put(int sheet, CellPosition cell, const CellValue& value);
    /// The cell holds again what its file holds, a formula as a rule; one that the file no longer holds comes
    /// back as the value that it showed.
    void putBack(int sheet, CellPosition cell, const CellValue& shown);
    /// Rows from `row` on move by one. What stands in the last row is lost, formulas become their values.
    void moveDown(int sheet, int row);
    void moveUp(int sheet, int row);
    void setColumnWidth(int sheet, int column, double characters); ///< brought into 0..255
    /// Refuses a name that is empty, too long, taken, or has a character that may not stand in it.
    void renameSheet(int sheet, const QString& name);

    const xls::Workbook& book() const { return book_; }
    xls::Workbook& book() { return book_; }

private:
    bool isOtherSheetsName(int sheet, const QString& name) const;
    [[noreturn]] void refuseArray(int sheet, CellPosition cell) const;

    xls::Workbook book_;
};

/// Calls `action(cell)` for every cell of the range, row by row.
template <typename Action>
void forCells(const CellRange& range, Action action) {
    for (int row = range.first.row; row <= range.last.row; ++row)
        for (int column = range.first.column; column <= range.last.column; ++column)
            action(CellPosition{row, column});
}

} // namespace zvonika
