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

QString radaPoChybe(const Pisen& pisen, int cislo) {
    if (cislo != error::subscriptOutOfRange && cislo != error::objectNotSet) return {};
    const auto sesit = vPopredi(pisen);
    if (!sesit)
        return QStringLiteral(
            "Tabulka byla ukončena a znovu se spustí až s programem: ukončete Zvoniku (Ctrl+Q) "
            "a spusťte ji znovu.");
    if (!pisen.otevrena() || *sesit == pisen.aktualniPisen) return {};
    return QStringLiteral("Písnička „%1“ je v tabulce zavřená: stiskněte Konec písničky (Ctrl+E) a pak ji "
                          "znovu otevřete.")
        .arg(pisen.aktualniPisen);
}

} // namespace zvonika
