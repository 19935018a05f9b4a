#pragma once

#include "spreadsheet/SpreadsheetApplication.h"

#include <QStringList>

namespace zvonika {

/// The names of all sheets of the active workbook, in workbook order. Walks through the sheets and selects
/// the active one again at the end. May throw AutomationError.
QStringList nazvyListu(SpreadsheetApplication& excel);

} // namespace zvonika
