#pragma once

#include "theory/CisloTonu.h"
#include "theory/Key.h"
#include "theory/ToneName.h"

namespace zvonika {

struct PojmenovanyTon {
    ToneName nazev;
    bool mimoStupnici = false; ///< not in the key's scale; never so in "Fis dur" and in an unknown key
};

/// The sharp name; "Nenalezeno" outside 1..49.
ToneName nazevTonu(CisloTonu ton);

/// The tone as it is written in the key; in "Fis dur" and in an unknown key the sharp name. "Nenalezeno", and
/// not outside the scale, where the tone is outside 1..49.
PojmenovanyTon nazevTonu(CisloTonu ton, const Key& stupnice);

/// The tone of exactly this name in any of its spellings; unknown for any other text.
CisloTonu cisloTonu(const ToneName& nazev);

} // namespace zvonika
