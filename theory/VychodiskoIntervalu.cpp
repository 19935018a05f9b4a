#include "theory/VychodiskoIntervalu.h"

#include "theory/TonNaOsnove.h"
#include "theory/Tonavox12.h"
#include "theory/clsNoty.h"

namespace zvonika {

namespace {

constexpr int stupnuVOktave = 7;

struct PojmenovanyTon {
    ToneName nazev;
    bool mimoStupnici;
};

PojmenovanyTon pojmenuj(CisloTonu ton, const Key& stupnice) {
    Tonavox12 tonavox;
    QString normalizovana = stupnice.text();
    tonavox.DejTonVeStupnici(ton, normalizovana);
    const PojmenovanyTon pojmenovany{tonavox.nazevTonu(), tonavox.MimoStupnici()};
    tonavox.DejCisloTonu(pojmenovany.nazev);
    if (tonavox.cisloTonu() == ton) return pojmenovany;
    // F dur writes e4 like the e three octaves below, and the interval would start there.
    tonavox.DejTon(ton);
    return {tonavox.nazevTonu(), pojmenovany.mimoStupnici};
}

/// The tone of the scale on the line or space where `nazev` is written, in the nearest octave that has it.
void najdiOporu(VychodiskoIntervalu& vychodisko, const Key& stupnice, const clsNoty& noty) {
    const auto poloha = PolohaNoty::zTextu(noty.UrciPolohuNoty(vychodisko.nazev));
    if (!poloha) return;
    for (const int oktava : {0, 1, -1}) {
        const int jednotky = poloha->jednotky + oktava * PolohaNoty::jednotekNaOktavu;
        const CisloTonu ton = tonNaOsnove({Znamenko::Zadne, jednotky}, Predznamenani(stupnice));
        if (!ton.jeVRozsahu()) continue;
        vychodisko.opora = pojmenuj(ton, stupnice).nazev;
        vychodisko.posun = -oktava * stupnuVOktave;
        return;
    }
}

} // namespace

VychodiskoIntervalu vychodiskoIntervalu(CisloTonu ton, const Key& stupnice, const clsNoty& noty) {
    const PojmenovanyTon pojmenovany = pojmenuj(ton, stupnice);
    VychodiskoIntervalu vychodisko{pojmenovany.nazev, pojmenovany.mimoStupnici, pojmenovany.nazev};
    if (vychodisko.mimoStupnici) najdiOporu(vychodisko, stupnice, noty);
    return vychodisko;
}

} // namespace zvonika
