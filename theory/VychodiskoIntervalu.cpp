#include "theory/VychodiskoIntervalu.h"

#include "theory/NazvyTonu.h"
#include "theory/TonNaOsnove.h"
#include "theory/clsNoty.h"

namespace zvonika {

namespace {

constexpr int stupnuVOktave = 7;

PojmenovanyTon pojmenuj(CisloTonu ton, const Key& stupnice) {
    PojmenovanyTon pojmenovany = nazevTonu(ton, stupnice);
    // F dur writes e4 like the e three octaves below, and the interval would start there.
    if (cisloTonu(pojmenovany.nazev) != ton) pojmenovany.nazev = nazevTonu(ton);
    return pojmenovany;
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
