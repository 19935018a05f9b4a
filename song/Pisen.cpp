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

bool Pisen::AktivujPisen() {
    try {
        excel().activateWindow(aktualniPisen);
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

} // namespace zvonika
