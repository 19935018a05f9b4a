#pragma once

#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/libreoffice/PacedCursor.h"
#include "spreadsheet/libreoffice/WriteBehind.h"

namespace zvonika {

/// The cells of Calc's active sheet, as the port has them.
class Cells {
public:
    Cells(CalcCalls& calls, PacedCursor& cursor, ReadAhead& seen)
        : calls_(calls), cursor_(cursor), seen_(seen), behind_(calls, seen) {}

    CellValue value(const QString& address);                       ///< of a range, its first cell
    void setValue(const QString& address, const CellValue& value); ///< of a range, all its cells
    CellValue activeValue() { return at(cursor_.position()); }
    void setActiveValue(const CellValue& value);
    void moveCursor(int rows, int columns);
    void clear(const QString& address);
    void findAndActivate(const FindArguments& arguments);

    CellBlock read(const QString& address);
    void write(const QString& address, const CellBlock& block);
    void insertRow(int row);
    void deleteRow(int row);
    /// A block as it was read; a single cell fills the selection.
    void writeAtSelection(const CellBlock& block);
    /// What was written is in Calc afterwards; raises what a write has met since.
    void finishWriting() { behind_.deliver(); }

private:
    CellValue at(CellPosition cell);
    CellBlock readAhead(const CellRange& piece, unsigned acts);
    bool keep(CellPosition first, const CellBlock& block);
    void writeSame(const CellRange& range, const CellValue& value);
    void clear(const CellRange& range);

    CalcCalls& calls_;
    PacedCursor& cursor_;
    ReadAhead& seen_;
    WriteBehind behind_;
};

} // namespace zvonika
