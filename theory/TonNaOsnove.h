#pragma once

#include "theory/CisloTonu.h"
#include "theory/PolohaNoty.h"
#include "theory/Predznamenani.h"
#include "theory/ToneName.h"

namespace zvonika {

/// The tone that a note at this position sounds: its own sign decides, without one the key signature. Unknown
/// (99) outside 1..49 and between the lines.
CisloTonu tonNaOsnove(const PolohaNoty& poloha, const Predznamenani& predznamenani);

/// The name of the note as it is read from the staff (an e sharpened by the signature is "eis1,"); empty
/// where `tonNaOsnove` knows no tone.
ToneName nazevNaOsnove(const PolohaNoty& poloha, const Predznamenani& predznamenani);

} // namespace zvonika
