#include "playing/song/ZivotPisne.h"

#include "platform/Hlaseni.h"
#include "playing/song/SlozkaPisni.h"
#include "playing/stepping/Listy.h"
#include "playing/stepping/PrikazyPisne.h"

namespace zvonika {

namespace {

Message hlaseniUlozeni(int cislo) {
    switch (cislo) {
    case error::subscriptOutOfRange:
        return {QStringLiteral("Nenalezena aktuální skladba."),
                QStringLiteral("Píseň nelze uložit !\n"
                               "Uživatel, nebo jiný program zavřel soubor s aktuální skladbou.\n"
                               "Pro příště prosím nezavírejte soubory Excelu ručně !"),
                Icon::Exclamation};
    case error::objectNotSet:
        return {QStringLiteral("Nenalezena externí aplikace."),
                QStringLiteral("Soubor nelze uložit !\n"
                               "Uživatel, nebo jiný program zavřel Excel.\n"
                               "Tato chyba může způsobit nestabilitu systému !"),
                Icon::Exclamation};
    default:
        return neocekavanaChyba(cislo);
    }
}

Message hlaseniZalozeni(int cislo) {
    if (cislo != error::applicationDefined) return neocekavanaChyba(cislo);
    // The text names the folder above the working folder, on purpose.
    return {QStringLiteral("Pracovní adresář neexistuje."),
            QStringLiteral("Cesta C:\\Dokumenty\\Heligonka nenalezena. Aby mohl program správně pracovat, "
                           "vytvořte nejprve ručně tento adresář !!!"),
            Icon::Critical};
}

/// For tidying up after a failure that is reported already.
void zavriTise(SpreadsheetApplication& excel) {
    try {
        excel.closeActiveWorkbook();
    } catch (const std::exception&) {
    }
}

void zavriTise(Pisen& pisen) {
    try {
        if (pisen.AktivujPisen()) pisen.excel().closeActiveWorkbook();
    } catch (const std::exception&) {
    }
}

} // namespace

ZivotPisne::ZivotPisne(const OkoliPisne& okoli, Drive& drive, const Spolupracovnici& spolupracovnici)
    : okoli_(okoli), drive_(drive), s_(spolupracovnici), list_(okoli.pisen) {}

void ZivotPisne::cmdNovaSkladba() {
    okoli_.panel.upozorneni.clear();
    if (!SlozkaExistuje(drive_, pracovniAdresar)) zalozPracovniAdresar(drive_, okoli_.dialogs);
    const QString nazev =
        okoli_.dialogs.input(QStringLiteral("Nová skladba."), QStringLiteral("Zadejte název nové písničky."));
    if (nazev.isEmpty()) return;
    const QString plneJmeno = pracovniAdresar + u'\\' + nazev + QStringLiteral(".xls");
    if (PisenExistuje(drive_, okoli_.dialogs, plneJmeno)) {
        okoli_.dialogs.message({QStringLiteral("Založení nové skladby přerušeno."),
                                QStringLiteral("Začněte znovu a zadejte jiný název písně."),
                                Icon::Information});
        return;
    }
    zalozPisen(plneJmeno);
}

void ZivotPisne::zalozPisen(const QString& plneJmeno) {
    try {
        zalozSesit(plneJmeno);
        ozivNovouPisen();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        zahodRozdelanou();
        okoli_.dialogs.message(hlaseniZalozeni(chyba.number()));
        okoli_.panel.upozorneni = chyba.cause();
        okoli_.panel.oznamZmenu();
    }
}

void ZivotPisne::zalozSesit(const QString& plneJmeno) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.addWorkbook();
    try {
        excel.saveActiveWorkbookAs({plneJmeno});
        okoli_.pisen.aktualniPisen = excel.activeWorkbookName();
    } catch (...) {
        zavriTise(excel); // no nameless workbook may stay behind in front of the user
        throw;
    }
}

void ZivotPisne::ozivNovouPisen() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.renameActiveSheet(QStringLiteral("Tonavox XII"));
    PovolPrikazyPisne(okoli_.prikazy);
    s_.zvuk.NajdiZvuk();
    okoli_.panel.titulek = excel.activeWorkbookName();
    okoli_.panel.listy = QStringList{okoli_.panel.lblLadeni};
    list_.VyberBunkuB();
    s_.navigace.ukazOdKurzoru();
}

void ZivotPisne::cmdEdit() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    const auto soubor = excel.getOpenFilename(QStringLiteral("Excel Files,*.xls"),
                                              QStringLiteral("Vyberte písničku, kterou chcete zkoušet !"));
    if (!soubor) return;
    excel.openWorkbook(*soubor);
    try {
        okoli_.pisen.aktualniPisen = excel.activeWorkbookName();
        ukazOtevrenouPisen();
    } catch (...) {
        if (!okoli_.pisen.otevrena()) zavriTise(excel);
        zahodRozdelanou();
        throw;
    }
}

void ZivotPisne::ukazOtevrenouPisen() {
    okoli_.panel.titulek = okoli_.pisen.aktualniPisen;
    PovolPrikazyPisne(okoli_.prikazy);
    s_.zvuk.NajdiZvuk();
    list_.VyberBunkuB();
    NaplnListy();
    s_.navigace.ukazOdKurzoru();
}

void ZivotPisne::prevezmiPisen() {
    if (!okoli_.pisen.AktivujPisen()) return;
    okoli_.panel.lblLadeni = okoli_.pisen.excel().activeSheetName();
    ukazOtevrenouPisen();
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
    ukazRadekListu();
    excel.saveActiveWorkbook();
}

void ZivotPisne::ukazRadekListu() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(s_.zobrazeni);
    const VyrezPisne vyrez = s_.pas.ctiOdKurzoru();
    s_.navigace.UrciSmerMechu(vyrez);
    s_.zobrazeni.ZobrazHmat(vyrez);
    s_.pas.ZobrazPas(vyrez);
}

void ZivotPisne::cmdEndEdit() {
    okoli_.panel.lblStupnice.clear();
    QString pricina;
    try {
        ulozAZavri();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        okoli_.dialogs.message(hlaseniUlozeni(chyba.number()));
        pricina = chyba.cause();
    }
    stavBezPisne();
    s_.uvolniVse();
    s_.zobrazeni.odeberHmat();
    okoli_.panel.upozorneni = pricina;
    okoli_.panel.oznamZmenu();
}

void ZivotPisne::ulozAZavri() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    if (excel.activeWorkbookName() != okoli_.pisen.aktualniPisen) {
        if (!okoli_.pisen.otevrena()) return;
        excel.activateWindow(okoli_.pisen.aktualniPisen);
    }
    excel.saveActiveWorkbook();
    excel.closeActiveWorkbook();
}

void ZivotPisne::NaplnListy() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    okoli_.panel.listy = nazvyListu(excel);
    okoli_.panel.Combo1 = excel.activeSheetName();
    okoli_.panel.oznamZmenu();
}

void ZivotPisne::stavBezPisne() {
    okoli_.pisen.aktualniPisen.clear();
    ZakazPrikazyPisne(okoli_.prikazy);
    okoli_.prikazy.povol(QStringLiteral("Combo1"), false);
    vyprazdniTexty();
    s_.pas.vyprazdni();
    povolZahajeniPisne(okoli_.prikazy, true);
    okoli_.panel.oznamZmenu();
}

void ZivotPisne::vyprazdniTexty() {
    SongPanel& panel = okoli_.panel;
    panel.barvaKroku = BarvaKroku::Neznamy;
    panel.titulek = QStringLiteral("Zvonika");
    panel.lblTon = QStringLiteral("1");
    panel.lblStupnice.clear();
    panel.lblSlabika = {};
    panel.popisyViditelne = false;
    panel.lblTony.clear();
    panel.lblBasy.clear();
    panel.listy.clear();
    panel.Combo1.clear();
    panel.lblLadeni = QStringLiteral("Tonavox12");
    panel.upozorneni.clear();
}

/// Back to no song after a failure half way; the failure itself is the caller's to report.
void ZivotPisne::zahodRozdelanou() {
    if (!okoli_.pisen.otevrena()) return;
    zavriTise(okoli_.pisen);
    stavBezPisne();
    s_.zobrazeni.odeberHmat();
}

} // namespace zvonika
