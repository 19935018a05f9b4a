#include "song/SpusteniExcelu.h"

#include "platform/Drive.h"

namespace zvonika {

namespace {

// The application keeps its default folder in its own settings, so what the first instance is given reaches
// the second one only after the first has quit.
void nastavPracovniCestu(const SpreadsheetLauncher& spoustec, Pisen& pisen) {
    const auto prvni = spoustec();
    pisen.puvodniCestaExcelu = prvni->defaultFilePath();
    prvni->setDefaultFilePath(pracovniAdresar);
    prvni->quit();
}

} // namespace

void SpustExcel(const SpreadsheetLauncher& spoustec, Pisen& pisen) {
    nastavPracovniCestu(spoustec, pisen);
    auto druha = spoustec();
    druha->setVisible(true);
    pisen.aplikaceExcel = std::move(druha);
}

} // namespace zvonika
