#include "playing/song/PisenVOkne.h"

#include "playing/stepping/Listy.h"
#include "playing/stepping/PrikazyPisne.h"
#include "playing/stepping/RozdilTonin.h"

namespace zvonika {

namespace {

void zavriTise(Pisen& pisen) {
    try {
        if (pisen.AktivujPisen()) pisen.excel().closeActiveWorkbook();
    } catch (const std::exception&) {
    }
}

} // namespace

void zavriTise(SpreadsheetApplication& excel) {
    try {
        excel.closeActiveWorkbook();
    } catch (const std::exception&) {
    }
}

void PisenVOkne::ukazOtevrenou() {
    okoli_.panel.titulek = okoli_.pisen.aktualniPisen;
    PovolPrikazyPisne(okoli_.prikazy);
    s_.zvuk.NajdiZvuk();
    list_.VyberBunkuB();
    NaplnListy();
    s_.navigace.ukazOdKurzoru();
    pripomenToninu();
    if (!s_.kroky.probud()) pripomen(QStringLiteral("Soubor se od zavření změnil, kroky vrátit nejde."));
}

void PisenVOkne::pripomen(const QString& veta) {
    okoli_.panel.upozorneni = (okoli_.panel.upozorneni + u' ' + veta).trimmed();
}

void PisenVOkne::ukazJmeno() {
    okoli_.panel.titulek = okoli_.pisen.aktualniPisen;
    s_.zvuk.najdiSoubory();
}

/// What is recorded next gets the key of the button, not that of the song.
void PisenVOkne::pripomenToninu() {
    pripomen(rozdilTonin(okoli_.panel.lblStupnice, s_.tonina.stupnice()));
}

void PisenVOkne::ukazNovou() {
    PovolPrikazyPisne(okoli_.prikazy);
    s_.zvuk.NajdiZvuk();
    okoli_.panel.titulek = okoli_.pisen.excel().activeWorkbookName();
    okoli_.panel.listy = QStringList{okoli_.panel.lblLadeni};
    list_.VyberBunkuB();
    s_.navigace.ukazOdKurzoru();
    s_.kroky.zapomen(okoli_.pisen.plneJmeno);
}

void PisenVOkne::ukazKopii() {
    s_.kroky.zapomen(okoli_.pisen.plneJmeno);
    ukazOtevrenou();
}

void PisenVOkne::ukazRadekListu() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(s_.zobrazeni);
    const VyrezPisne vyrez = s_.pas.ctiOdKurzoru();
    s_.navigace.UrciSmerMechu(vyrez);
    s_.zobrazeni.ZobrazHmat(vyrez);
    s_.pas.ZobrazPas(vyrez);
}

void PisenVOkne::NaplnListy() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    okoli_.panel.listy = nazvyListu(excel);
    okoli_.panel.Combo1 = excel.activeSheetName();
    okoli_.panel.oznamZmenu();
}

void PisenVOkne::stavBezPisne() {
    s_.kroky.uspi();
    okoli_.pisen.aktualniPisen.clear();
    okoli_.pisen.plneJmeno.clear();
    ZakazPrikazyPisne(okoli_.prikazy);
    okoli_.prikazy.povol(QStringLiteral("Combo1"), false);
    vyprazdniTexty();
    s_.pas.vyprazdni();
    povolZahajeniPisne(okoli_.prikazy, true);
    okoli_.panel.oznamZmenu();
}

void PisenVOkne::uvolniDesku() {
    s_.uvolniVse();
    s_.zobrazeni.odeberHmat();
}

void PisenVOkne::vyprazdniTexty() {
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

void PisenVOkne::zahodRozdelanou() {
    if (!okoli_.pisen.otevrena()) return;
    zavriTise(okoli_.pisen);
    stavBezPisne();
    s_.zobrazeni.odeberHmat();
}

} // namespace zvonika
