#pragma once

#include "spreadsheet/xls/book/SheetLayout.h"

#include <cstdint>
#include <optional>

namespace zvonika::xls {

/// Width of a column in 1/256 of a character; the sheet's default where none is set.
std::uint32_t columnWidth(ByteView stream, const SheetLayout& layout, std::uint32_t column);

/// Format that a ColInfo record gives the cells of a column, where there is one.
std::optional<std::uint16_t> columnFormat(ByteView stream, const SheetLayout& layout, std::uint32_t column);

/// The Selection record of the pane that has the cursor; `absent` when the sheet has none.
std::uint32_t activeSelection(ByteView stream, const SheetLayout& layout);

/// The cell with the cursor; A1 when the sheet does not say.
CellKey activeCell(ByteView stream, const SheetLayout& layout);

} // namespace zvonika::xls
