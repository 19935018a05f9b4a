#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"

namespace zvonika {

struct Installation;

/// Loads the plug-in and what it needs of LibreOffice, once and for the rest of the process; later calls give
/// the same. AutomationError 429 with the reason when it cannot be loaded.
ConnectToCalc loadCalcPlugin(const Installation& installation);

} // namespace zvonika
