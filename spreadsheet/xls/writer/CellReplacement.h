#pragma once

#include "spreadsheet/xls/writer/SheetPatch.h"

#include <span>

namespace zvonika::xls {

/// Replaces cells that have a record. MulRk and MulBlank are split where the new cell does not fit in. A
/// cell that has several records keeps the last one.
void replaceCells(SheetPatch& patch, std::span<const CellChange> changes);

} // namespace zvonika::xls
