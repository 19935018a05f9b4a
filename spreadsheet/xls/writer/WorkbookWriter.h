#pragma once

#include "spreadsheet/xls/book/WorkbookModel.h"

namespace zvonika::xls {

/// The workbook stream with the edits in it. Records that do not have to change keep their bytes.
std::vector<std::uint8_t> writeWorkbook(const WorkbookModel& model, const WorkbookEdits& edits);

} // namespace zvonika::xls
