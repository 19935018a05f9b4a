#pragma once

#include "theory/ToneName.h"

namespace zvonika {

/// The other spelling of a tone ("cis1," to "des1,", "ces1," to "h,"), or "nejde" where there is none. Names
/// of the small octave keep the last letter of their old stem before the comma ("fis," gives "gess,"); "b,"
/// and "his," do not.
ToneName ZamenNotu(const ToneName& nazev);

} // namespace zvonika
