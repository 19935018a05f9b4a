#pragma once

#include "spreadsheet/xls/book/WorkbookModel.h"
#include "spreadsheet/xls/records/PatchedStream.h"

namespace zvonika::xls {

/// The workbook stream with the edits in it, as long as the model lives. Records that do not have to change
/// keep their bytes.
PatchedStream writeWorkbook(const WorkbookModel& model, const WorkbookEdits& edits);

} // namespace zvonika::xls
