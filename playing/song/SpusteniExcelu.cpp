#include "playing/song/SpusteniExcelu.h"

#include "platform/Drive.h"

#include <exception>

namespace zvonika {

namespace {

/// Tidies up after a failed start, which is the caller's to report: through this instance or, where there is
/// none, through a fresh one.
void vratCestu(std::unique_ptr<SpreadsheetApplication> excel, const SpreadsheetLauncher& spoustec,
               const QString& cesta) {
    try {
        if (!excel) excel = spoustec();
        excel->setDefaultFilePath(cesta);
        excel->quit();
    } catch (const std::exception&) {
    }
}

// The application keeps its default folder in its own settings, so what the first instance is given reaches
// the second one only after the first has quit.
void nastavPracovniCestu(const SpreadsheetLauncher& spoustec, Pisen& pisen, const PuvodniCesta& puvodni) {
    auto prvni = spoustec();
    pisen.puvodniCestaExcelu = puvodni.zjisti(prvni->defaultFilePath());
    try {
        prvni->setDefaultFilePath(pracovniAdresar);
        prvni->quit();
    } catch (...) {
        vratCestu(std::move(prvni), spoustec, pisen.puvodniCestaExcelu);
        throw;
    }
}

} // namespace

void SpustExcel(const SpreadsheetLauncher& spoustec, Pisen& pisen, const PuvodniCesta& puvodni) {
    nastavPracovniCestu(spoustec, pisen, puvodni);
    std::unique_ptr<SpreadsheetApplication> druha;
    try {
        druha = spoustec();
        druha->setVisible(true);
    } catch (...) {
        // Otherwise the next run would take the working folder for the user's own.
        vratCestu(std::move(druha), spoustec, pisen.puvodniCestaExcelu);
        throw;
    }
    pisen.aplikaceExcel = std::move(druha);
}

} // namespace zvonika
