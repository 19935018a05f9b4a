#pragma once

#include "song/SongSheet.h"

namespace zvonika {

/// Starts the spreadsheet application for the run. A first instance is asked for the user's default folder,
/// which is kept in `puvodniCestaExcelu`, and gets the program's working folder instead; it quits, and a
/// second, visible instance becomes `aplikaceExcel`. Throws AutomationError; `aplikaceExcel` is null then.
void SpustExcel(const SpreadsheetLauncher& spoustec, Pisen& pisen);

} // namespace zvonika
