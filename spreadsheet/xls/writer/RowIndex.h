#pragma once

#include "spreadsheet/xls/records/PatchedStream.h"
#include "spreadsheet/xls/writer/SheetPatch.h"

#include <span>

namespace zvonika::xls {

/// Makes room for what the sheet's DbCell, Index and Dimensions records will have to say about the changed
/// cells.
void patchRowIndex(SheetPatch& patch, std::span<const CellChange> fresh);

/// Fills in the offsets in the new stream. `rebuild`: blocks were changed or added, not only moved.
void fixRowIndex(PatchedStream& out, const SheetLayout& layout, bool rebuild, bool newBlocks);

} // namespace zvonika::xls
