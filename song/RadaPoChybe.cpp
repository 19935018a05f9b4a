#include "song/RadaPoChybe.h"

namespace zvonika {

namespace {

/// Name of the workbook in front, "" when there is none; nothing when the spreadsheet does not run.
std::optional<QString> vPopredi(const Pisen& pisen) {
    try {
        return pisen.excel().activeWorkbookName();
    } catch (const AutomationError&) {
        return std::nullopt;
    }
}

} // namespace

QString radaPoChybe(const Pisen& pisen, const AutomationError& chyba) {
    if (chyba.number() != error::subscriptOutOfRange && chyba.number() != error::objectNotSet)
        return chyba.cause();
    const auto sesit = vPopredi(pisen);
    if (!sesit) return QStringLiteral("Tabulka byla ukončena: ukončete Zvoniku (Ctrl+Q) a spusťte ji znovu.");
    if (!pisen.otevrena() || *sesit == pisen.aktualniPisen) return chyba.cause();
    return QStringLiteral(
        "Písnička je v tabulce zavřená: stiskněte Konec písničky (Ctrl+E) a znovu ji otevřete.");
}

} // namespace zvonika
