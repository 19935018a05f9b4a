#include "playing/song/ZivotPisne.h"

namespace zvonika {

ZivotPisne::ZivotPisne(const OkoliPisne& okoli, Drive& drive,
                       const PisenVOkne::Spolupracovnici& spolupracovnici)
    : okoli_(okoli), drive_(drive), list_(okoli.pisen), kroky_(spolupracovnici.kroky),
      vOkne_(okoli, spolupracovnici), zalozeni_(okoli, drive, vOkne_), konec_(okoli, vOkne_) {}

void ZivotPisne::cmdEdit() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    const auto soubor = excel.getOpenFilename(QStringLiteral("Excel Files,*.xls"),
                                              QStringLiteral("Vyberte písničku, kterou chcete zkoušet !"));
    if (soubor) otevri(*soubor);
}

void ZivotPisne::otevri(const QString& soubor) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.openWorkbook(soubor);
    try {
        okoli_.pisen.aktualniPisen = excel.activeWorkbookName();
        okoli_.pisen.plneJmeno = soubor;
        vOkne_.ukazOtevrenou();
        oznamJenKeCteni();
    } catch (...) {
        if (!okoli_.pisen.otevrena()) zavriTise(excel);
        vOkne_.zahodRozdelanou();
        throw;
    }
}

void ZivotPisne::oznamJenKeCteni() {
    const QString& soubor = okoli_.pisen.plneJmeno;
    QString vystraha = drive_.readOnlyBecause(soubor);
    if (!vystraha.isEmpty())
        vystraha += QStringLiteral(" Změny uložte z okna tabulky jinam (F6, Uložit jako…).");
    else
        vystraha = drive_.unlockedBecause(soubor);
    if (vystraha.isEmpty()) return;
    okoli_.panel.vystraha = vystraha;
    okoli_.panel.oznamZmenu();
}

void ZivotPisne::prevezmiPisen() {
    if (okoli_.pisen.AktivujPisen()) vOkne_.ukazKopii();
}

void ZivotPisne::prejmenujPisen(const QString& nazev, const QString& plneJmeno) {
    kroky_.prejmenuj(plneJmeno);
    okoli_.pisen.aktualniPisen = nazev;
    okoli_.pisen.plneJmeno = plneJmeno;
    vOkne_.ukazJmeno();
}

void ZivotPisne::Combo1Click(const QString& list) {
    try {
        ukazList(list);
    } catch (...) {
        okoli_.panel.oznamZmenu(); // the list shows the sheet that is really there again
        throw;
    }
}

void ZivotPisne::ukazList(const QString& list) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.activateWindow(okoli_.pisen.aktualniPisen);
    const int radek = excel.activeRow();
    excel.selectSheet(list);
    list_.vyberRadek(radek);
    okoli_.panel.lblLadeni = list;
    okoli_.panel.Combo1 = list;
    vOkne_.ukazRadekListu();
    okoli_.pisen.ulozAktivni();
}

} // namespace zvonika
