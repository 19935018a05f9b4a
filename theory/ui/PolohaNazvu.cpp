#include "theory/ui/PolohaNazvu.h"

#include "theory/Stupne.h"
#include "theory/ui/MirkaOsnovy.h"

namespace zvonika {

namespace {

std::optional<Znamenko> znamenkoJmena(const Stupen& stupen, QStringView jmeno) {
    if (jmeno == stupen.prirozeny) return Znamenko::Zadne;
    if (jmeno == stupen.skrizkem) return Znamenko::Krizek;
    if (jmeno == stupen.sbeckem) return Znamenko::Becko;
    return std::nullopt;
}

} // namespace

std::optional<PolohaNoty> polohaNazvu(const ToneName& nazev) {
    QStringView jmeno = nazev.text();
    if (!jmeno.endsWith(u',')) return std::nullopt;
    jmeno.chop(1);
    int oktava = 0;
    if (!jmeno.isEmpty() && jmeno.back() >= u'1' && jmeno.back() <= u'4') {
        oktava = jmeno.back().digitValue();
        jmeno.chop(1);
    }
    for (std::size_t i = 0; i < stupne.size(); ++i) {
        const auto znamenko = znamenkoJmena(stupne[i], jmeno);
        if (!znamenko) continue;
        const int jednotky =
            oktava * PolohaNoty::jednotekNaOktavu + static_cast<int>(i) * PolohaNoty::jednotekNaStupen;
        if (jednotky < MirkaOsnovy::nejnizsi || jednotky > MirkaOsnovy::nejvyssi) return std::nullopt;
        return PolohaNoty{*znamenko, jednotky};
    }
    return std::nullopt;
}

QVector<PolohaNoty> polohyNazvu(const QStringList& nazvy) {
    QVector<PolohaNoty> polohy;
    for (const QString& nazev : nazvy) {
        const auto poloha = polohaNazvu(ToneName(nazev));
        if (poloha && !polohy.contains(*poloha)) polohy.append(*poloha);
    }
    return polohy;
}

} // namespace zvonika
