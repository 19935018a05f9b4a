#include "theory/TonNaOsnove.h"

#include "theory/Stupne.h"

namespace zvonika {

namespace {

const Stupen& stupenPolohy(const PolohaNoty& poloha) {
    const int stupen = poloha.jednotky % PolohaNoty::jednotekNaOktavu / PolohaNoty::jednotekNaStupen;
    return stupne.at(static_cast<std::size_t>(stupen));
}

int oktavaPolohy(const PolohaNoty& poloha) {
    return poloha.jednotky / PolohaNoty::jednotekNaOktavu;
}

Znamenko platneZnamenko(const PolohaNoty& poloha, const Predznamenani& predznamenani) {
    return poloha.znamenko == Znamenko::Zadne ? predznamenani.proPolohu(poloha.jednotky) : poloha.znamenko;
}

int pultonyZnamenka(Znamenko znamenko) {
    if (znamenko == Znamenko::Krizek) return 1;
    return znamenko == Znamenko::Becko ? -1 : 0;
}

QStringView jmenoStupne(const Stupen& stupen, Znamenko znamenko) {
    if (znamenko == Znamenko::Krizek) return stupen.skrizkem;
    return znamenko == Znamenko::Becko ? stupen.sbeckem : stupen.prirozeny;
}

} // namespace

CisloTonu tonNaOsnove(const PolohaNoty& poloha, const Predznamenani& predznamenani) {
    if (poloha.jednotky < 0 || poloha.jednotky % PolohaNoty::jednotekNaStupen != 0)
        return CisloTonu::neznamy();
    const CisloTonu cislo(cisloMalehoC + pultonuVOktave * oktavaPolohy(poloha) +
                          stupenPolohy(poloha).pultony +
                          pultonyZnamenka(platneZnamenko(poloha, predznamenani)));
    return cislo.jeVRozsahu() ? cislo : CisloTonu::neznamy();
}

ToneName nazevNaOsnove(const PolohaNoty& poloha, const Predznamenani& predznamenani) {
    if (!tonNaOsnove(poloha, predznamenani).jeVRozsahu()) return {};
    QString nazev = jmenoStupne(stupenPolohy(poloha), platneZnamenko(poloha, predznamenani)).toString();
    if (const int oktava = oktavaPolohy(poloha); oktava > 0) nazev += QString::number(oktava);
    return ToneName(nazev + u',');
}

} // namespace zvonika
