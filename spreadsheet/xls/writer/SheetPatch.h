#pragma once

#include "spreadsheet/xls/book/SheetLayout.h"
#include "spreadsheet/xls/records/PatchList.h"

#include <map>
#include <set>
#include <vector>

namespace zvonika::xls {

/// Stands in a DbCell record whose offsets are still to be filled in.
constexpr std::uint32_t unfilledBlock = 0xFFFFFFFF;

/// A DbCell record for this many rows, to be filled in when all offsets are known.
inline std::vector<std::uint8_t> unfilledDbCell(std::size_t rows) {
    std::vector<std::uint8_t> payload(4 + 2 * rows);
    store32(payload.data(), unfilledBlock);
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::DbCell, payload);
    return record;
}

/// A cell and its new contents; a text is an index into the shared strings.
struct CellChange {
    CellKey key;
    CellContent content;
};

/// What the rooms that change one sheet share.
struct SheetPatch {
    ByteView stream;
    const SheetLayout& layout;
    PatchList& patches;
    const CellFormats& formats;
    /// The rows with new cells in the blocks whose bytes change, by the offset of the block's DbCell record.
    std::map<std::uint32_t, std::set<std::uint32_t>> changedBlocks{};
    std::uint32_t newBlocks = 0;

    /// Notes that bytes at `offset` change, so that the block's DbCell record is made anew.
    void touch(std::uint32_t offset) {
        if (const RowBlock* block = layout.blockAt(offset)) changedBlocks[block->dbCell];
    }
    /// Notes that a cell in this row comes to stand at `offset`.
    void touch(std::uint32_t offset, std::uint32_t row) {
        if (const RowBlock* block = layout.blockAt(offset)) changedBlocks[block->dbCell].insert(row);
    }
};

} // namespace zvonika::xls
