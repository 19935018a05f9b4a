#include "playing/stepping/Navigace.h"

#include "board/TrebleBoard.h"
#include "playing/stepping/Listy.h"
#include "playing/stepping/PrikazyPisne.h"
#include "spreadsheet/Address.h"

#include <utility>

namespace zvonika {

namespace {

constexpr int radkuHledani = 500; ///< in which the last grip is looked for
const QString prvniBunka = absoluteAddress(CellPosition{1, sloupce::tony.prvni});

BarvaKroku barvaSmeru(SmerMechu smer) {
    switch (smer) {
    case SmerMechu::Tah:
        return BarvaKroku::Tah;
    case SmerMechu::Tlak:
        return BarvaKroku::Tlak;
    case SmerMechu::Neuveden:
        break;
    }
    return BarvaKroku::Neznamy;
}

/// Activates the first empty cell of the selected column; false when there is none.
bool najdiPrazdnou(SpreadsheetApplication& excel) {
    try {
        excel.findAndActivate(FindArguments());
        return true;
    } catch (const AutomationError& chyba) {
        // The same number tells that the application is gone; the caller's next request to it will show that.
        if (chyba.number() != error::objectNotSet) throw;
        return false;
    }
}

} // namespace

Navigace::Navigace(const OkoliPisne& okoli, ZobrazeniHmatu& zobrazeni, PasPisne& pas, TrebleBoard& diskant,
                   std::function<void()> uvolniVse)
    : okoli_(okoli), list_(okoli.pisen), zobrazeni_(zobrazeni), pas_(pas), diskant_(diskant),
      uvolniVse_(std::move(uvolniVse)) {}

void Navigace::cmdPrvni() {
    uvolniAVyberBunkuB();
    list_.vyberRadek(1);
    ZakazZpet(okoli_.prikazy);
    ukazOdKurzoru();
}

void Navigace::cmdPredchozi() {
    predchozi();
}

void Navigace::cmdDalsi() {
    dalsi();
}

VyrezPisne Navigace::predchozi() {
    uvolniAVyberBunkuB();
    if (okoli_.pisen.excel().activeAddress() != prvniBunka) return krok(-1);
    ZakazZpet(okoli_.prikazy);
    return list_.kolemKurzoru();
}

VyrezPisne Navigace::dalsi() {
    uvolniAVyberBunkuB();
    const VyrezPisne vyrez = krok(1);
    PovolZpet(okoli_.prikazy);
    return vyrez;
}

/// The rows that it has read and shown are given to who has more to do with them.
VyrezPisne Navigace::krok(int oKolik) {
    okoli_.pisen.excel().moveCursor(oKolik, 0);
    const VyrezPisne vyrez = pas_.ctiPoPosunu(oKolik);
    zobrazeni_.ZobrazHmat(vyrez);
    pas_.posun(oKolik, vyrez);
    return vyrez;
}

void Navigace::ukazOdKurzoru() {
    const VyrezPisne vyrez = pas_.ctiOdKurzoru();
    zobrazeni_.ZobrazHmat(vyrez);
    pas_.ZobrazPas(vyrez);
}

void Navigace::cmdPosledni() {
    const int puvodniRadek = uvolniAVyberBunkuB();
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.selectRange(adresaSloupce(sloupce::tony.prvni, radkuHledani));
    if (isEmpty(excel.activeCellValue())) {
        zustanNaPrvnim();
        return;
    }
    if (!najdiPrazdnou(excel)) {
        zustanNaRadku(puvodniRadek);
        return;
    }
    excel.moveCursor(-1, 0);
    ukazOdKurzoru();
    if (excel.activeAddress() == prvniBunka)
        ZakazZpet(okoli_.prikazy);
    else
        PovolZpet(okoli_.prikazy);
}

void Navigace::zustanNaPrvnim() {
    list_.vyberRadek(1);
    ZakazZpet(okoli_.prikazy);
    const VyrezPisne vyrez = pas_.ctiOdKurzoru();
    zobrazeni_.ZobrazTexty(vyrez);
    pas_.ZobrazPas(vyrez);
}

void Navigace::zustanNaRadku(int radek) {
    list_.vyberRadek(radek);
    ukazOdKurzoru();
    okoli_.panel.upozorneni =
        QStringLiteral("Poslední hmat se hledá jen v prvních 500 řádcích a ty jsou všechny plné.");
    okoli_.panel.oznamZmenu();
}

void Navigace::cmdPredTah() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    zobrazeni_.cmdReadTah(predchozi());
}

void Navigace::cmdPredTlak() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    zobrazeni_.cmdReadTlak(predchozi());
}

void Navigace::cmdDalsiTah() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    zobrazeni_.cmdReadTah(dalsi());
}

void Navigace::cmdDalsiTlak() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    zobrazeni_.cmdReadTlak(dalsi());
}

void Navigace::cmdJakDal() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    UrciSmerMechu(dalsi());
}

void Navigace::cmdJakDalZpet() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    UrciSmerMechu(predchozi());
}

void Navigace::naRadek(int radek) {
    okoli_.pisen.excel().activateWindow(okoli_.pisen.aktualniPisen);
    uvolniAVyberBunkuB();
    list_.vyberRadek(radek);
    sledujList();
    sledujRadek();
}

void Navigace::UrciSmerMechu(const VyrezPisne& vyrez) {
    const SmerMechu smer = smerMechu(vyrez.hmat().smer);
    if (smer == SmerMechu::Neuveden) {
        ohlasChybejiciSmer();
        return;
    }
    smer == SmerMechu::Tlak ? zobrazeni_.cmdReadTlak(vyrez) : zobrazeni_.cmdReadTah(vyrez);
    obarvi(barvaSmeru(smer));
}

void Navigace::ohlasChybejiciSmer() {
    zastavTimer1_();
    okoli_.dialogs.message(
        {.title = QStringLiteral("Neprovedeno."),
         .text = QStringLiteral("Další záznam neuveden, nebo chybí informace o směru tahu měchu."),
         .icon = Icon::Critical,
         .pedal = true});
    obarvi(BarvaKroku::Neznamy);
    diskant_.vyprazdniTonyKlaves();
}

void Navigace::sledujKurzor() {
    try {
        if (!okoli_.pisen.otevrena()) return;
        if (okoli_.pisen.excel().activeWorkbookName() != okoli_.pisen.aktualniPisen) return;
        sledujList();
        sledujRadek();
    } catch (const AutomationError&) {
        // The user may be closing the workbook or the application right now; the next command reports it.
    }
}

void Navigace::sledujList() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    SongPanel& panel = okoli_.panel;
    const QString nazev = excel.activeSheetName();
    if (panel.listy.size() != excel.sheetCount() || !panel.listy.contains(nazev))
        panel.listy = nazvyListu(excel);
    panel.lblLadeni = nazev;
    panel.Combo1 = nazev;
}

void Navigace::sledujRadek() {
    const VyrezPisne vyrez = pas_.ctiPoZmene();
    // What was being typed when a grip was recorded ends only now, and is no reason to record it again.
    if (okoli_.panel.lblTon != QString::number(vyrez.radek)) okoli_.panel.zapsano.clear();
    const SmerMechu smer = zobrazeni_.ZobrazHmatPotichu(vyrez);
    pas_.obnov(vyrez);
    if (vyrez.radek > 1) PovolZpet(okoli_.prikazy);
    obarvi(barvaSmeru(smer));
}

int Navigace::uvolniAVyberBunkuB() {
    uvolniVse_();
    zobrazeni_.odeberHmat();
    return list_.VyberBunkuB();
}

void Navigace::obarvi(BarvaKroku barva) {
    okoli_.panel.barvaKroku = barva;
    okoli_.panel.oznamZmenu();
}

} // namespace zvonika
