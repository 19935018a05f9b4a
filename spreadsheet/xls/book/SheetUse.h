#pragma once

#include "spreadsheet/xls/book/WorkbookModel.h"

namespace zvonika::xls {

/// Keeps a sheet's used range at hand: the file's at first, then followed; counted anew only when a cell at
/// its edge was emptied.
class SheetUse {
public:
    const UsedRange& range(ByteView stream, const SheetLayout& layout, const SheetEdits& edits);
    /// A cell was set, to a value or to nothing.
    void changed(CellKey key, bool hasValue);

private:
    UsedRange range_;
    bool known_ = false;
};

} // namespace zvonika::xls
