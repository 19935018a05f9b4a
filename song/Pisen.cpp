#include "song/Pisen.h"

#include <utility>

namespace zvonika {

const SpreadsheetApplication& Pisen::excel() const {
    if (!aplikaceExcel)
        throw AutomationError(error::objectNotSet, QStringLiteral("Tabulková aplikace není spuštěna."));
    return *aplikaceExcel;
}

SpreadsheetApplication& Pisen::excel() {
    std::as_const(*this).excel(); // that there is one
    return *aplikaceExcel;
}

void Pisen::ulozAktivni() {
    try {
        excel().saveActiveWorkbook();
    } catch (const AutomationError& odmitnuti) {
        if (odmitnuti.number() != error::applicationDefined || excel().activeWorkbookModified()) throw;
    }
}

bool Pisen::AktivujPisen() {
    try {
        excel().activateWindow(aktualniPisen);
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

} // namespace zvonika
