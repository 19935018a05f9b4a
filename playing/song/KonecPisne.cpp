#include "playing/song/KonecPisne.h"

#include "platform/Hlaseni.h"
#include "playing/song/PisenVOkne.h"

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

} // namespace

void KonecPisne::cmdEndEdit() {
    okoli_.panel.lblStupnice.clear();
    QString pricina;
    try {
        ulozAZavri();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        okoli_.dialogs.message(hlaseniUlozeni(chyba.number()));
        pricina = chyba.cause();
    }
    vOkne_.stavBezPisne();
    vOkne_.uvolniDesku();
    okoli_.panel.upozorneni = pricina;
    okoli_.panel.oznamZmenu();
}

void KonecPisne::ulozAZavri() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    if (excel.activeWorkbookName() != okoli_.pisen.aktualniPisen) {
        if (!okoli_.pisen.otevrena()) return;
        excel.activateWindow(okoli_.pisen.aktualniPisen);
    }
    excel.saveActiveWorkbook();
    excel.closeActiveWorkbook();
}

} // namespace zvonika
