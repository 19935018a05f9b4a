#pragma once

#include "song/xls/book/SheetLayout.h"
#include "song/xls/records/PatchList.h"

#include <map>

namespace zvonika::xls {

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
    std::uint16_t defaultFormat;
    /// Rows added to the blocks whose bytes change, by the offset of their DbCell record.
    std::map<std::uint32_t, std::uint32_t> changedBlocks{};
    std::uint32_t newBlocks = 0;

    /// Notes that bytes at `offset` change, so that the block's DbCell record is made anew.
    void touch(std::uint32_t offset, std::uint32_t addedRows = 0) {
        if (const RowBlock* block = layout.blockAt(offset)) changedBlocks[block->dbCell] += addedRows;
    }
};

} // namespace zvonika::xls
