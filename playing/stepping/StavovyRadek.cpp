#include "playing/stepping/StavovyRadek.h"

#include "theory/Key.h"

namespace zvonika {

namespace {

QString coDal(const StavProgramu& stav) {
    if (!stav.pisenOtevrena)
        return QStringLiteral("Začněte tlačítkem Nová píseň, nebo otevřete hotovou tlačítkem Otevřít.");
    if (stav.automatBezi)
        return QStringLiteral("Automat jde písničkou sám, rychlost mění Tempo. Zastaví ho tlačítko Automat "
                              "nebo klávesa F9.");
    if (!stav.zapsano.isEmpty())
        return stav.zapsano +
               QStringLiteral(" Knoflíky zůstávají označené pro další hmat, uvolní je klávesa F4.");
    if (!stav.neniCoZapsat) return QStringLiteral("Zapište hmat tlačítkem < Tah nebo > Tlak.");
    if (stav.radekPrazdny)
        return QStringLiteral(
            "Označte knoflíky dalšího hmatu. Slabiky pište v tabulce do sloupce A (klávesa F6).");
    return QStringLiteral("Další hmat ukáže klávesa PageDown, předchozí PageUp. Slabiky pište v tabulce do "
                          "sloupce A (klávesa F6).");
}

} // namespace

QString stavovyRadek(const StavProgramu& stav) {
    if (!stav.upozorneni.isEmpty()) return (stav.zapsano + u' ' + stav.upozorneni).trimmed();
    const bool bezToniny = stav.stupnice.isEmpty() || stav.stupnice == Key::vyberteToninu().text();
    // A key matters for what is written next, not for reading.
    const bool piseSe = stav.pisenOtevrena && (stav.radekPrazdny || !stav.neniCoZapsat);
    return bezToniny && piseSe ? QStringLiteral("Tónina není zvolena. ") + coDal(stav) : coDal(stav);
}

} // namespace zvonika
