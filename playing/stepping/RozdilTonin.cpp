#include "playing/stepping/RozdilTonin.h"

#include "theory/Toniny.h"

namespace zvonika {

namespace {

/// `jina` (%1: the row's key, %2: the chosen one) or, where none is chosen, `zadna` (%1).
QString oToninach(const QString& toninaRadku, const Key& zvolena, const QString& jina, const QString& zadna) {
    const DurovaTonina* radku = najdiToninu(Key(toninaRadku));
    const DurovaTonina* proZapis = najdiToninu(zvolena);
    if (!radku || radku == proZapis) return {};
    return proZapis ? jina.arg(radku->nazev, proZapis->nazev) : zadna.arg(radku->nazev);
}

} // namespace

QString rozdilTonin(const QString& toninaRadku, const Key& zvolena) {
    return oToninach(toninaRadku, zvolena, QStringLiteral("Hmat je v %1, pro zápis je zvolena %2."),
                     QStringLiteral("Hmat je v %1, tónina pro zápis zvolena není."));
}

QString ztrataToniny(const QString& toninaRadku, const Key& zvolena) {
    return oToninach(toninaRadku, zvolena, QStringLiteral("Hmat je v %1, zapíše se v %2; %1 zvolíte Ctrl+T."),
                     QStringLiteral("Hmat je v %1, zapíše se bez tóniny; %1 zvolíte Ctrl+T."));
}

} // namespace zvonika
