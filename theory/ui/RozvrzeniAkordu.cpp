#include "theory/ui/RozvrzeniAkordu.h"

#include <algorithm>

namespace zvonika {

namespace {

constexpr double pulHlavicky = 0.66;
constexpr double sloupecHlavicek = 1.2;
constexpr double sloupecZnamenek = 1.06;
constexpr double mezeraPredHlavickou = 0.16;
/// Heads nearer than a third touch.
constexpr int tercie = 2 * PolohaNoty::jednotekNaStupen;

/// The first column in which the note has room above what stands there. `vrcholy`: highest note of each
/// column.
int prvniVolny(QVector<int>& vrcholy, int jednotky) {
    int sloupec = 0;
    while (sloupec < vrcholy.size() && jednotky - vrcholy[sloupec] < tercie)
        ++sloupec;
    if (sloupec == vrcholy.size()) vrcholy.append(0);
    vrcholy[sloupec] = jednotky;
    return sloupec;
}

QRectF mistoZnamenka(const PolohaNoty& poloha) {
    return rozmerZnamenka(poloha.znamenko).translated(0, -poloha.jednotky / double(tercie));
}

void rozvrhniHlavicky(RozvrzeniAkordu& akord) {
    QVector<int> vrcholy;
    for (MistoNoty& nota : akord.noty)
        nota.hlavicka = prvniVolny(vrcholy, nota.poloha.jednotky) * sloupecHlavicek;
    akord.vlevo = -pulHlavicky;
    akord.vpravo = pulHlavicky + static_cast<double>(vrcholy.size() - 1) * sloupecHlavicek;
}

/// From the top down, each sign as far right as it goes.
void rozvrhniZnamenka(RozvrzeniAkordu& akord) {
    QVector<QVector<QRectF>> sloupce;
    for (auto nota = akord.noty.rbegin(); nota != akord.noty.rend(); ++nota) {
        if (nota->poloha.znamenko == Znamenko::Zadne) continue;
        const QRectF misto = mistoZnamenka(nota->poloha);
        const auto volny = std::find_if(sloupce.begin(), sloupce.end(), [&](const QVector<QRectF>& obsazeno) {
            return std::none_of(obsazeno.begin(), obsazeno.end(),
                                [&](const QRectF& jine) { return jine.intersects(misto); });
        });
        const auto poradi = static_cast<double>(volny - sloupce.begin());
        if (volny == sloupce.end())
            sloupce.append({misto});
        else
            volny->append(misto);
        const double pravy = -pulHlavicky - mezeraPredHlavickou - poradi * sloupecZnamenek;
        nota->znamenko = pravy - misto.width();
        akord.vlevo = std::min(akord.vlevo, nota->znamenko);
    }
}

} // namespace

QRectF rozmerZnamenka(Znamenko znamenko) {
    switch (znamenko) {
    case Znamenko::Krizek:
        return {0, -1.4, 1.0, 2.8};
    case Znamenko::Becko:
        return {0, -1.75, 0.92, 2.5};
    case Znamenko::Odrazka:
        return {0, -1.36, 0.7, 2.72};
    case Znamenko::Zadne:
        break;
    }
    return {};
}

RozvrzeniAkordu rozvrhniAkord(const QVector<PolohaNoty>& polohy, const std::optional<PolohaNoty>& interval) {
    RozvrzeniAkordu akord;
    for (const PolohaNoty& poloha : polohy)
        akord.noty.append({poloha});
    if (interval) akord.noty.append({*interval, 0, 0, true});
    if (akord.noty.isEmpty()) return {};
    std::stable_sort(akord.noty.begin(), akord.noty.end(), [](const MistoNoty& a, const MistoNoty& b) {
        return a.poloha.jednotky < b.poloha.jednotky;
    });
    rozvrhniHlavicky(akord);
    rozvrhniZnamenka(akord);
    return akord;
}

} // namespace zvonika
