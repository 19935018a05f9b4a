#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QElapsedTimer>

#include <chrono>
#include <optional>

namespace zvonika {

/// What was last seen of the active sheet of Calc, for a moment: a program that asks cell by cell then calls
/// Calc once for a piece of the sheet. Whatever the user does there ends it, and so does the moment.
class ReadAhead {
public:
    explicit ReadAhead(std::chrono::milliseconds moment = std::chrono::milliseconds(100)) : moment_(moment) {}

    /// The piece of a sheet to read when this cell is asked for: a few rows, and more where the last piece is
    /// gone on with.
    CellRange pieceWith(CellPosition cell) const;

    /// `acts`: how many acts of the user have been heard of. An answer is there only if it is the same number
    /// as at the time of reading.
    std::optional<CellPosition> cursor(unsigned acts) const;
    std::optional<CellValue> value(CellPosition cell, unsigned acts) const;
    std::optional<CellBlock> block(const CellRange& range, unsigned acts) const; ///< all of it, or nothing
    bool isActive(const QString& workbook, unsigned acts) const; ///< false when that is not known
    std::optional<bool> takesBlocks(unsigned acts) const;        ///< as `CalcEngine::holdSheet` has told

    /// `acts` is the number before the reading.
    void learnCursor(CellPosition cursor, unsigned acts);
    /// `plain`: no cell of the sheet depends on another.
    void learnCells(const CellRange& piece, CellBlock cells, bool plain, unsigned acts);
    /// The program writes a text that is kept letter by letter, or empties the cell.
    void write(CellPosition cell, const CellValue& value, unsigned acts);
    void learnActive(const QString& workbook, unsigned acts);
    void learnTakesBlocks(bool takes, unsigned acts);

    void forgetCursor() { cursor_.reset(); }
    void forgetCells() { cells_.clear(); }
    void forget();

private:
    bool fresh(unsigned acts) const;
    void begin(unsigned acts);

    std::chrono::milliseconds moment_;
    std::optional<CellPosition> cursor_;
    QString workbook_;
    std::optional<bool> takesBlocks_;
    CellRange piece_;
    CellBlock cells_; ///< of `piece_`; empty when nothing is known
    bool plain_ = false;
    unsigned acts_ = 0;
    QElapsedTimer age_;
};

} // namespace zvonika
