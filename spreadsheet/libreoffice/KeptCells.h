#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"

#include <QMap>

namespace zvonika {

/// Single cells on their way to a sheet, gathered into blocks.
class KeptCells {
public:
    void add(CellPosition cell, const CellValue& value) { rows_[cell.row][cell.column] = value; }
    bool isEmpty() const { return rows_.isEmpty(); }
    /// Rectangles that hold every cell that was added, with its last value, and no other.
    QVector<PlacedBlock> blocks() const;

private:
    using Row = QMap<int, CellValue>; ///< by column
    static QVector<PlacedBlock> runs(int row, const Row& cells);

    QMap<int, Row> rows_;
};

} // namespace zvonika
