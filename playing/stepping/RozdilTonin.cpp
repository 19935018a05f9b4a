#include "playing/stepping/RozdilTonin.h"

#include "theory/Toniny.h"

namespace zvonika {

QString rozdilTonin(const QString& toninaRadku, const Key& zvolena) {
    const DurovaTonina* radku = najdiToninu(Key(toninaRadku));
    const DurovaTonina* proZapis = najdiToninu(zvolena);
    if (!radku || radku == proZapis) return {};
    return proZapis
               ? QStringLiteral("Hmat je v %1, pro zápis je zvolena %2.").arg(radku->nazev, proZapis->nazev)
               : QStringLiteral("Hmat je v %1, tónina pro zápis zvolena není.").arg(radku->nazev);
}

} // namespace zvonika
