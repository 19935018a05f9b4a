#pragma once

#include "song/xls/book/WorkbookModel.h"

namespace zvonika::xls {

/// One past the last row and column that hold a value.
struct UsedRange {
    std::uint32_t rows = 0;
    std::uint32_t columns = 0;
};

/// Keeps a sheet's used range at hand: counted once, then followed; counted again only when a cell at its
/// edge is emptied.
class SheetUse {
public:
    const UsedRange& range(ByteView stream, const SheetLayout& layout, const SheetEdits& edits);
    /// A cell was set, to a value or to nothing.
    void changed(CellKey key, bool hasValue);

private:
    void include(CellKey key);

    UsedRange range_;
    bool known_ = false;
};

} // namespace zvonika::xls
