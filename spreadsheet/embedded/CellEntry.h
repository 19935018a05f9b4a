#pragma once

#include "spreadsheet/CellValue.h"

namespace zvonika {

/// What a user means by typing `text` into a cell: "15", "3,5", "3.5", "-2" and "1E+20" are numbers, a
/// leading "'" makes text of what follows it, nothing is an empty cell; everything else is text, formulas and
/// dates too. More than 15 digits are text, so that none is lost.
CellValue typedValue(const QString& text);

/// As the value stands in the sheet: decimal comma, "PRAVDA" or "NEPRAVDA".
QString displayText(const CellValue& value);

/// As a cell editor shows it: like `displayText`, but a text that would be read as something else has a "'"
/// before it.
QString editText(const CellValue& value);

} // namespace zvonika
