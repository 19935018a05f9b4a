#include "song/xls/book/SheetUse.h"

#include "song/xls/book/CellReader.h"

#include <algorithm>

namespace zvonika::xls {

void SheetUse::include(CellKey key) {
    range_.rows = std::max(range_.rows, rowOf(key) + 1);
    range_.columns = std::max(range_.columns, columnOf(key) + 1);
}

const UsedRange& SheetUse::range(ByteView stream, const SheetLayout& layout, const SheetEdits& edits) {
    if (known_) return range_;
    range_ = {};
    for (const CellSlot& slot : layout.cells)
        if (!isBlankRecord(stream, slot.record) && !edits.cells.contains(slot.key)) include(slot.key);
    for (const auto& [key, content] : edits.cells)
        if (content.kind != CellContent::Kind::Blank) include(key);
    known_ = true;
    return range_;
}

void SheetUse::changed(CellKey key, bool hasValue) {
    if (!known_) return;
    if (hasValue)
        include(key);
    else if (rowOf(key) + 1 == range_.rows || columnOf(key) + 1 == range_.columns)
        known_ = false;
}

} // namespace zvonika::xls
