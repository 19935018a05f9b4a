#include "conversion/KopiePisne.h"

#include "platform/RuntimeError.h"
#include "platform/ShownText.h"

namespace zvonika {

namespace {

constexpr int delkaPripony = 4; // ".xls"
constexpr int nejkratsiSPriponou = 5;

} // namespace

bool KopiePisne::uloz(const QString& cilova) {
    SpreadsheetApplication& excel = pisen_.excel();
    const QString pisen = pisen_.aktualniPisen;
    if (pisen.size() < nejkratsiSPriponou) { // never saved under a name of its own
        excel.saveActiveWorkbookAs({pisen + u' ' + cilova});
    } else {
        const QString kopie = pisen.chopped(delkaPripony) + u' ' + cilova;
        if (!uvolniMisto(pracovniAdresar + u'\\' + kopie + QStringLiteral(".xls"))) return false;
        excel.saveActiveWorkbook();
        excel.saveActiveWorkbookAs({kopie});
    }
    pisen_.aktualniPisen = excel.activeWorkbookName();
    return true;
}

bool KopiePisne::uvolniMisto(const QString& plneJmeno) {
    if (!drive_.fileExists(plneJmeno)) return true;
    const Answer odpoved = dialogs_.message(
        {plneJmeno, QStringLiteral("Soubor již existuje. Přejete si ho vymazat a nahradit novým ?"),
         Icon::None, Buttons::OkCancel});
    if (odpoved != Answer::Ok) return false;
    if (!drive_.deleteFile(plneJmeno))
        throw RuntimeError(error::permissionDenied,
                           QStringLiteral("Soubor %1 se nepodařilo vymazat.").arg(shownName(plneJmeno)));
    return true;
}

} // namespace zvonika
