#pragma once

#include "spreadsheet/xls/book/Globals.h"
#include "spreadsheet/xls/records/CellRecord.h"

#include <algorithm>
#include <span>
#include <vector>

namespace zvonika::xls {

/// A cell and the record that holds it.
struct CellSlot {
    CellKey key;
    std::uint32_t record;
};

/// A row and its Row record.
struct RowSlot {
    std::uint32_t row;
    std::uint32_t record;
};

/// Rows and their cells up to one DbCell record.
struct RowBlock {
    std::uint32_t start = 0;  ///< offset of the first Row or cell record
    std::uint32_t dbCell = 0; ///< offset of the DbCell record
    std::uint32_t firstRow = 0;
    std::uint32_t lastRow = 0;
};

/// One past the last row and column that hold a value.
struct UsedRange {
    std::uint32_t rows = 0;
    std::uint32_t columns = 0;
    void include(CellKey key) {
        rows = std::max(rows, rowOf(key) + 1);
        columns = std::max(columns, columnOf(key) + 1);
    }
};

/// What is where in a sheet's substream, itself and no chart nested in it. Offsets are of records in the
/// stream.
class SheetLayout {
public:
    std::uint32_t start = 0; ///< Bof
    std::uint32_t eof = 0;
    std::uint32_t uncalced = absent;
    std::uint32_t index = absent;
    std::uint32_t dimensions = absent;
    std::uint32_t defColWidth = absent;
    std::uint32_t standardWidth = absent;
    std::uint32_t defaultRowHeight = absent;
    std::uint32_t window2 = absent;
    std::uint32_t pane = absent;
    std::uint32_t scl = absent;
    std::uint32_t settingsEnd = absent; ///< end of what has to stand before rows and cells
    std::vector<std::uint32_t> selections;
    std::vector<std::uint32_t> colInfos;
    std::vector<CellSlot> cells;          ///< sorted by key; of duplicates the later record comes last
    std::vector<std::uint32_t> rowStarts; ///< by row: index in `cells` of its first cell; one more at the
                                          ///< end. Empty for sparse sheets
    UsedRange used;                       ///< of cells that hold more than a format
    std::vector<RowSlot> rows;            ///< sorted by row
    std::uint32_t sharedTexts = 0;        ///< LabelSst records
    std::uint32_t formulas = 0;           ///< Formula records
    std::uint32_t dbCells = 0;            ///< DbCell records, those of no rows included
    std::vector<RowBlock> blocks; ///< in the order of the stream; empty when the sheet has no DbCell records

    /// The record that holds a cell; null when there is none.
    const CellSlot* findCell(CellKey key) const;
    /// All records that hold a cell; the last of them counts.
    std::span<const CellSlot> recordsOf(CellKey key) const;
    const RowSlot* findRow(std::uint32_t row) const;
    /// The block that a record at this offset belongs to; null outside all blocks.
    const RowBlock* blockAt(std::uint32_t offset) const;
    /// Where the first Row or cell record of an empty sheet belongs.
    std::uint32_t tablePosition() const;
};

/// Reads the substream of `entry`. `sharedStrings`: how many there are. Throws FormatError.
SheetLayout readSheetLayout(ByteView stream, const SheetEntry& entry, std::uint32_t sharedStrings);

} // namespace zvonika::xls
