#pragma once

#include "app/CastiProgramu.h"
#include "app/RozvodPrikazu.h"

namespace zvonika {

/// The handlers of all commands of the main window; the parts must outlive them.
ObsluhyPrikazu obsluhyOkna(const CastiProgramu& casti);

} // namespace zvonika
