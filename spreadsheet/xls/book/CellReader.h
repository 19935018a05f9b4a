#pragma once

#include "spreadsheet/xls/Value.h"
#include "spreadsheet/xls/book/SheetLayout.h"
#include "spreadsheet/xls/strings/SharedStrings.h"

namespace zvonika::xls {

/// Puts into `value` what the file holds in a cell; of a formula its stored result. A text that `value` held
/// lends its memory to the next one.
void readCell(ByteView stream, const SharedStrings& strings, const CellSlot& slot, Value& value);

} // namespace zvonika::xls
