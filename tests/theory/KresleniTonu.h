#pragma once

#include "theory/NazvyTonu.h"
#include "theory/PrijemceNot.h"
#include "theory/clsNoty.h"

namespace zvonika::testing {

/// A tone as it is spelled and placed in a key, ready to be drawn.
inline KreslenaNota kreslenaNota(int ton, const Key& stupnice, Dialogs& dialogs) {
    const ToneName nazev = nazevTonu(CisloTonu(ton), stupnice).nazev;
    const auto poloha = PolohaNoty::zTextu(clsNoty(dialogs).UrciPolohuNoty(nazev));
    return {CisloTonu(ton), nazev, poloha.value_or(PolohaNoty())};
}

} // namespace zvonika::testing
