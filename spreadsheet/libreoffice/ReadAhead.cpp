#include "spreadsheet/libreoffice/ReadAhead.h"

#include <algorithm>

namespace zvonika {

namespace {
constexpr int rowsAhead = 8;    ///< a song is mostly read from row to row
constexpr int mostRows = 128;   ///< by who reads all of it
constexpr int songColumns = 23; ///< A to W
} // namespace

CellRange ReadAhead::pieceWith(CellPosition cell) const {
    if (cell.column > songColumns) return single(cell);
    const bool goesOn = cell.row > piece_.first.row && cell.row <= piece_.last.row + 1;
    const int rows = goesOn ? std::clamp(4 * piece_.rows(), rowsAhead, mostRows) : rowsAhead;
    return {{cell.row, 1}, {std::min(cell.row + rows - 1, lastRow), songColumns}};
}

bool ReadAhead::fresh(unsigned acts) const {
    return acts == acts_ && age_.isValid() && !age_.hasExpired(moment_.count());
}

void ReadAhead::begin(unsigned acts) {
    if (fresh(acts)) return;
    forget();
    acts_ = acts;
    age_.start();
}

std::optional<CellPosition> ReadAhead::cursor(unsigned acts) const {
    return fresh(acts) ? cursor_ : std::nullopt;
}

std::optional<CellValue> ReadAhead::value(CellPosition cell, unsigned acts) const {
    if (cells_.isEmpty() || !piece_.contains(cell) || !fresh(acts)) return std::nullopt;
    return cells_.at(cell.row - piece_.first.row).at(cell.column - piece_.first.column);
}

std::optional<CellBlock> ReadAhead::block(const CellRange& range, unsigned acts) const {
    const bool known = piece_.contains(range.first) && piece_.contains(range.last);
    if (cells_.isEmpty() || !known || !fresh(acts)) return std::nullopt;
    CellBlock block;
    for (int row = range.first.row; row <= range.last.row; ++row)
        block << cells_.at(row - piece_.first.row)
                     .mid(range.first.column - piece_.first.column, range.columns());
    return block;
}

bool ReadAhead::isActive(const QString& workbook, unsigned acts) const {
    return fresh(acts) && !workbook_.isEmpty() && workbook_ == workbook;
}

std::optional<bool> ReadAhead::takesBlocks(unsigned acts) const {
    return fresh(acts) ? takesBlocks_ : std::nullopt;
}

void ReadAhead::learnActive(const QString& workbook, unsigned acts) {
    begin(acts);
    workbook_ = workbook;
}

void ReadAhead::learnTakesBlocks(bool takes, unsigned acts) {
    begin(acts);
    takesBlocks_ = takes;
}

void ReadAhead::learnCursor(CellPosition cursor, unsigned acts) {
    begin(acts);
    cursor_ = cursor;
}

void ReadAhead::write(CellPosition cell, const CellValue& value, unsigned acts) {
    if (!plain_ || !fresh(acts)) return forgetCells();
    if (!cells_.isEmpty() && piece_.contains(cell))
        cells_[cell.row - piece_.first.row][cell.column - piece_.first.column] = value;
}

void ReadAhead::learnCells(const CellRange& piece, CellBlock cells, bool plain, unsigned acts) {
    begin(acts);
    plain_ = plain;
    piece_ = piece;
    cells_ = std::move(cells);
}

void ReadAhead::forget() {
    forgetCursor();
    forgetCells();
    workbook_.clear();
    takesBlocks_.reset();
    age_.invalidate();
}

} // namespace zvonika
