#pragma once

#include "song/xls/writer/SheetPatch.h"

#include <span>

namespace zvonika::xls {

/// True for a cell of an array formula over several cells or of a data table: its contents cannot be changed
/// alone.
bool isPartOfArray(ByteView stream, const SheetLayout& layout, CellKey key);

/// Where a changed cell holds a formula that other cells share, hands it on to the first of those.
void moveSharedFormulas(SheetPatch& patch, std::span<const CellChange> changes);

} // namespace zvonika::xls
