#include "theory/ui/PopisOsnovy.h"

#include "theory/NotovaOsnova.h"
#include "theory/clsNotyZapis.h"

#include <algorithm>

namespace zvonika {

namespace {

QString popisPredznamenani(const Predznamenani& predznamenani) {
    if (predznamenani.pocet() == 0) return QStringLiteral("bez předznamenání");
    const QString druh =
        predznamenani.druh() == Znamenko::Krizek ? QStringLiteral("křížky") : QStringLiteral("béčka");
    return QStringLiteral("předznamenání: %1 %2").arg(druh).arg(predznamenani.pocet());
}

QString popisSlotu(int slot, const NotovaOsnova& osnova, const clsNotyZapis& zapis) {
    QString popis = QStringLiteral("nota %1: %2").arg(slot + 1).arg(nazevNoty(zapis.ctenyNazev(slot)));
    if (zapis.CervenaNota(slot)) popis += QStringLiteral(" (mimo stupnici)");
    if (osnova.vybranySlot() == slot) popis += QStringLiteral(" (vybraná)");
    return popis;
}

} // namespace

QString nazevNoty(const ToneName& nazev) {
    return nazev.bezCarky();
}

QString popisOsnovy(const NotovaOsnova& osnova, const clsNotyZapis& zapis) {
    QStringList casti{popisPredznamenani(osnova.predznamenani())};
    for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot)
        if (osnova.nota(slot)) casti.append(popisSlotu(slot, osnova, zapis));
    const auto volnych = std::count(osnova.noty().begin(), osnova.noty().end(), std::nullopt);
    casti.append(QStringLiteral("volných míst: %1").arg(volnych));
    return casti.join(QStringLiteral("; "));
}

} // namespace zvonika
