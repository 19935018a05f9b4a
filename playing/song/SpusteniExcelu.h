#pragma once

#include "playing/song/PuvodniCesta.h"
#include "song/SongSheet.h"

namespace zvonika {

/// Starts the spreadsheet application for the run. A first instance is asked for the user's default folder,
/// which is kept in `puvodniCestaExcelu` (`puvodni` tells it from the program's own), and gets the program's
/// working folder instead; it quits, and a second, visible instance becomes `aplikaceExcel`. Throws what the
/// application threw; `aplikaceExcel` is null then and the user's folder is given back, if any instance can
/// be had that takes it.
void SpustExcel(const SpreadsheetLauncher& spoustec, Pisen& pisen, const PuvodniCesta& puvodni);

} // namespace zvonika
