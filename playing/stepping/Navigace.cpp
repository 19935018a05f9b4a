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
    zobrazeni_.ZobrazHmat();
    pas_.ZobrazPas();
}

void Navigace::cmdPredchozi() {
    uvolniAVyberBunkuB();
    if (okoli_.pisen.excel().activeAddress() == prvniBunka) {
        ZakazZpet(okoli_.prikazy);
        return;
    }
    okoli_.pisen.excel().moveCursor(-1, 0);
    zobrazeni_.ZobrazHmat();
    pas_.posun(-1);
}

void Navigace::cmdDalsi() {
    uvolniAVyberBunkuB();
    okoli_.pisen.excel().moveCursor(1, 0);
    zobrazeni_.ZobrazHmat();
    PovolZpet(okoli_.prikazy);
    pas_.posun(1);
}

void Navigace::cmdPosledni() {
    uvolniAVyberBunkuB();
    const int puvodniRadek = list_.aktualniRadek();
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
    zobrazeni_.ZobrazHmat();
    pas_.ZobrazPas();
    if (excel.activeAddress() == prvniBunka)
        ZakazZpet(okoli_.prikazy);
    else
        PovolZpet(okoli_.prikazy);
}

void Navigace::zustanNaPrvnim() {
    list_.vyberRadek(1);
    ZakazZpet(okoli_.prikazy);
    zobrazeni_.ZobrazTexty();
    pas_.ZobrazPas();
}

void Navigace::zustanNaRadku(int radek) {
    list_.vyberRadek(radek);
    zobrazeni_.ZobrazHmat();
    pas_.ZobrazPas();
    okoli_.panel.upozorneni =
        QStringLiteral("Poslední hmat se hledá jen v prvních 500 řádcích a ty jsou všechny plné.");
    okoli_.panel.oznamZmenu();
}

void Navigace::cmdPredTah() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdPredchozi();
    cmdReadTah();
}

void Navigace::cmdPredTlak() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdPredchozi();
    cmdReadTlak();
}

void Navigace::cmdDalsiTah() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdDalsi();
    cmdReadTah();
}

void Navigace::cmdDalsiTlak() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdDalsi();
    cmdReadTlak();
}

void Navigace::cmdJakDal() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdDalsi();
    UrciSmerMechu();
}

void Navigace::cmdJakDalZpet() {
    const ZobrazeniHmatu::JedenPrikaz prikaz(zobrazeni_);
    cmdPredchozi();
    UrciSmerMechu();
}

void Navigace::UrciSmerMechu() {
    const SmerMechu smer = list_.smer(list_.aktualniRadek());
    if (smer == SmerMechu::Neuveden) {
        ohlasChybejiciSmer();
        return;
    }
    smer == SmerMechu::Tlak ? cmdReadTlak() : cmdReadTah();
    obarvi(barvaSmeru(smer));
}

void Navigace::ohlasChybejiciSmer() {
    zastavTimer1_();
    okoli_.dialogs.message({QStringLiteral("Neprovedeno."),
                            QStringLiteral("Další záznam neuveden, nebo chybí informace o směru tahu měchu."),
                            Icon::Critical});
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
    const SmerMechu smer = zobrazeni_.ZobrazHmatPotichu();
    pas_.obnov();
    if (list_.aktualniRadek() > 1) PovolZpet(okoli_.prikazy);
    obarvi(barvaSmeru(smer));
}

void Navigace::uvolniAVyberBunkuB() {
    uvolniVse_();
    zobrazeni_.odeberHmat();
    list_.VyberBunkuB();
}

void Navigace::obarvi(BarvaKroku barva) {
    okoli_.panel.barvaKroku = barva;
    okoli_.panel.oznamZmenu();
}

} // namespace zvonika
