#include "spreadsheet/xls/book/SheetUse.h"

#include <algorithm>

namespace zvonika::xls {

const UsedRange& SheetUse::range(ByteView stream, const SheetLayout& layout, const SheetEdits& edits) {
    if (known_) return range_;
    range_ = edits.cells.empty() ? layout.used : UsedRange();
    if (!edits.cells.empty())
        for (const CellSlot& slot : layout.cells)
            if (!isBlankRecord(recordAt(stream, slot.record).type()) && !edits.cells.contains(slot.key))
                range_.include(slot.key);
    for (const auto& [key, content] : edits.cells)
        if (content.kind != CellContent::Kind::Blank) range_.include(key);
    known_ = true;
    return range_;
}

void SheetUse::changed(CellKey key, bool hasValue) {
    if (!known_) return;
    if (hasValue)
        range_.include(key);
    else if (rowOf(key) + 1 == range_.rows || columnOf(key) + 1 == range_.columns)
        known_ = false;
}

} // namespace zvonika::xls
