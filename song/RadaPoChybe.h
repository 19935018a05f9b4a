#pragma once

#include "song/Pisen.h"

namespace zvonika {

/// What to do after an error of this number (9 or 91) when the user has closed the song in the spreadsheet or
/// quit the spreadsheet: one Czech sentence or two; "" when neither is the case.
QString radaPoChybe(const Pisen& pisen, int cislo);

} // namespace zvonika
