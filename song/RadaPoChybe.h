#pragma once

#include "song/Pisen.h"

namespace zvonika {

/// What the status line says of an error: what to do when the user has closed the song in the spreadsheet or
/// quit the spreadsheet (9 and 91), otherwise its cause.
QString radaPoChybe(const Pisen& pisen, const AutomationError& chyba);

} // namespace zvonika
