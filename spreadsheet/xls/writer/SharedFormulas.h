#pragma once

#include "spreadsheet/xls/writer/SheetPatch.h"

#include <optional>
#include <span>

namespace zvonika::xls {

/// The first and the last of the cells that can only be changed together.
struct ArrayCells {
    CellKey first;
    CellKey last;
};

/// The cells of an array formula over several cells or of a data table that the cell is a part of.
std::optional<ArrayCells> arrayAround(ByteView stream, const SheetLayout& layout, CellKey key);

/// Where a changed cell holds a formula that other cells share, hands it on to the first of those.
void moveSharedFormulas(SheetPatch& patch, std::span<const CellChange> changes);

} // namespace zvonika::xls
