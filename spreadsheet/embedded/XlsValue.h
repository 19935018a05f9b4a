#pragma once

#include "spreadsheet/CellValue.h"
#include "spreadsheet/xls/Value.h"

namespace zvonika {

/// Between the values of a file and those of the program. The empty text becomes an empty cell, an error text
/// that no spreadsheet knows becomes #N/A.
CellValue fromXls(const xls::Value& value);
xls::Value toXls(const CellValue& value);

} // namespace zvonika
