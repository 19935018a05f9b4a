#include "playing/stepping/Listy.h"

namespace zvonika {

QStringList nazvyListu(SpreadsheetApplication& excel) {
    const QString aktivni = excel.activeSheetName();
    excel.selectSheet(1);
    const int pocet = excel.sheetCount();
    QStringList nazvy{excel.activeSheetName()};
    while (excel.activeSheetIndex() != pocet) {
        excel.selectNextSheet();
        nazvy.append(excel.activeSheetName());
    }
    excel.selectSheet(aktivni);
    return nazvy;
}

} // namespace zvonika
