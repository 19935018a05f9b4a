#include "conversion/KopiePisne.h"

#include <utility>

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
        misto_ = pracovniAdresar + u'\\' + kopie + QStringLiteral(".xls");
        if (!uvolniMisto()) return false;
        pisen_.ulozAktivni();
        excel.saveActiveWorkbookAs({kopie});
    }
    pisen_.aktualniPisen = excel.activeWorkbookName();
    puvodni_ = std::exchange(pisen_.plneJmeno, misto_);
    return true;
}

bool KopiePisne::uvolniMisto() {
    if (!drive_.fileExists(misto_)) return true;
    const Answer odpoved = dialogs_.message(
        {misto_, QStringLiteral("Soubor již existuje. Přejete si ho vymazat a nahradit novým ?"), Icon::None,
         Buttons::OkCancel});
    if (odpoved != Answer::Ok) return false;
    starsi_ = drive_.setAside(misto_);
    return true;
}

void KopiePisne::potvrd() {
    if (starsi_) starsi_->giveUp();
}

bool KopiePisne::vezmiZpet() {
    if (puvodni_.isEmpty() || misto_.isEmpty()) return false;
    try {
        otevriPuvodni();
        return true;
    } catch (const std::exception&) {
        return false; // what has led here is told by the caller
    }
}

// The song first: as long as it is not open, the copy is all that the player has.
void KopiePisne::otevriPuvodni() {
    SpreadsheetApplication& excel = pisen_.excel();
    const QString kopie = pisen_.aktualniPisen;
    excel.openWorkbook(puvodni_);
    pisen_.aktualniPisen = excel.activeWorkbookName();
    pisen_.plneJmeno = puvodni_;
    excel.activateWindow(kopie);
    excel.closeActiveWorkbook();
    excel.activateWindow(pisen_.aktualniPisen);
    drive_.deleteFile(misto_);
}

} // namespace zvonika
