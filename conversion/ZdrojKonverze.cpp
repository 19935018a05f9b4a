#include "conversion/ZdrojKonverze.h"

namespace zvonika {

void ZdrojKonverze::prevezmi() {
    pisenPredTim_ = pisen_.aktualniPisen;
    plneJmenoPredTim_ = pisen_.plneJmeno;
    nactena_ = pisen_.AktivujPisen();
    if (!nactena_) return;
    const QString stupnice = bunkaW1();
    stav_.lzeKonvertovat = !stupnice.isEmpty();
    if (stav_.lzeKonvertovat) ukaz(stupnice);
}

bool ZdrojKonverze::vyber() {
    SpreadsheetApplication& excel = pisen_.excel();
    const auto soubor = excel.getOpenFilename(
        QStringLiteral("Excel Files,*.xls"), QStringLiteral("Vyberte písničku, kterou chcete konvertovat !"));
    if (!soubor) return false;
    excel.openWorkbook(*soubor);
    pisen_.aktualniPisen = excel.activeWorkbookName();
    pisen_.plneJmeno = *soubor;
    if (!bunkaW1().isEmpty()) {
        ukaz(konverze_.ZjistiZapsaneLadeni(pisen_.aktualniPisen));
        return true;
    }
    dialogs_.message(
        {QStringLiteral("Nevhodný soubor."),
         QStringLiteral(
             "Vybraná píseň neobsahuje informaci o tom ve kterém ladění je zapsána. Konverzi nelze "
             "provést. Vyberte jinou píseň.\nPokročilí uživatelé mohou zapsat ladění do sloupce W."),
         Icon::Critical});
    ulozAZavri();
    return false;
}

void ZdrojKonverze::vrat() {
    SpreadsheetApplication& excel = pisen_.excel();
    excel.setVisible(true);
    if (nactena_) {
        excel.activateWindow(pisen_.aktualniPisen);
        pisen_.ulozAktivni();
    } else if (pisen_.AktivujPisen()) {
        ulozAZavri();
    }
}

/// The main window knows nothing of this song: for it everything is as before, also where saving fails.
void ZdrojKonverze::ulozAZavri() {
    pisen_.aktualniPisen = pisenPredTim_;
    pisen_.plneJmeno = plneJmenoPredTim_;
    pisen_.ulozAktivni();
    pisen_.excel().closeActiveWorkbook();
}

void ZdrojKonverze::ukaz(const QString& stupnice) {
    stav_.lblStupnice = stupnice;
    stav_.cmdVyberPisen = pisen_.aktualniPisen;
    stav_.vyberPovolen = false;
}

QString ZdrojKonverze::bunkaW1() const {
    return cellText(pisen_.excel().value(adresa(sloupce::tonina, 1)));
}

} // namespace zvonika
