#pragma once

#include "spreadsheet/xls/book/WorkbookModel.h"
#include "spreadsheet/xls/records/PatchList.h"

namespace zvonika::xls {

/// Sets column widths (1/256 of a character), splitting ColInfo records that cover more columns.
void patchColumnWidths(ByteView stream, const SheetLayout& layout, std::uint16_t defaultFormat,
                       const std::map<std::uint32_t, std::uint32_t>& widths, PatchList& patches);

/// Puts the cursor of the active pane on a cell. A sheet without Window2 record keeps none.
void patchActiveCell(ByteView stream, const SheetLayout& layout, CellKey cell, PatchList& patches);

/// Makes a sheet the active and only selected one.
void patchActiveSheet(const WorkbookModel& model, std::uint32_t sheet, PatchList& patches);

void patchSheetName(ByteView stream, const SheetEntry& sheet, const std::u16string& name, PatchList& patches);

} // namespace zvonika::xls
