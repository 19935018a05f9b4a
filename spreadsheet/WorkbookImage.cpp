#include "spreadsheet/WorkbookImage.h"

#include <algorithm>

namespace zvonika {

namespace {

template <typename Rows>
bool holds(const Rows& rows, CellPosition cell) {
    return cell.row <= rows.size() && cell.column <= rows.at(cell.row - 1).size();
}

void growTo(CellBlock& cells, CellPosition cell) {
    const qsizetype columns = std::max<qsizetype>(cell.column, cells.isEmpty() ? 0 : cells.first().size());
    if (cells.size() < cell.row) cells.resize(cell.row);
    for (auto& row : cells)
        if (row.size() < columns) row.resize(columns);
}

template <typename Rows>
void moveRowsOf(Rows& rows, int row, bool down) {
    if (row > rows.size()) return;
    if (down)
        rows.insert(row - 1, typename Rows::value_type(rows.first().size()));
    else
        rows.remove(row - 1);
}

} // namespace

CellValue SheetImage::value(CellPosition cell) const {
    return holds(cells, cell) ? cells.at(cell.row - 1).at(cell.column - 1) : CellValue();
}

QString SheetImage::formula(CellPosition cell) const {
    return holds(formulas, cell) ? formulas.at(cell.row - 1).at(cell.column - 1) : QString();
}

void SheetImage::put(CellPosition cell, const CellValue& value) {
    if (holds(formulas, cell)) formulas[cell.row - 1][cell.column - 1].clear();
    if (!holds(cells, cell)) {
        if (isEmpty(value)) return;
        growTo(cells, cell);
    }
    cells[cell.row - 1][cell.column - 1] = value;
}

void SheetImage::moveRows(int row, bool down) {
    moveRowsOf(cells, row, down);
    moveRowsOf(formulas, row, down);
}

CellPosition SheetImage::used() const {
    return {static_cast<int>(cells.size()), cells.isEmpty() ? 0 : static_cast<int>(cells.first().size())};
}

} // namespace zvonika
