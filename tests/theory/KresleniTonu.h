#pragma once

#include "theory/Key.h"
#include "theory/PrijemceNot.h"
#include "theory/Tonavox12.h"
#include "theory/clsNoty.h"

namespace zvonika::testing {

/// A tone as it is spelled and placed in a key, ready to be drawn.
inline KreslenaNota kreslenaNota(int ton, const Key& stupnice, Dialogs& dialogs) {
    Tonavox12 model;
    QString klic = stupnice.text();
    model.DejTonVeStupnici(CisloTonu(ton), klic);
    const auto poloha = PolohaNoty::zTextu(clsNoty(dialogs).UrciPolohuNoty(model.nazevTonu()));
    return {CisloTonu(ton), model.nazevTonu(), poloha.value_or(PolohaNoty())};
}

} // namespace zvonika::testing
