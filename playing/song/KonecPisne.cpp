#include "playing/song/KonecPisne.h"

#include "platform/Hlaseni.h"
#include "playing/song/PisenVOkne.h"
#include "song/RadaPoChybe.h"

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

/// The cause, and what to do now.
QString vystraha(const RuntimeError& chyba, const Pisen& pisen) {
    switch (chyba.number()) {
    case error::subscriptOutOfRange:
        return QStringLiteral("Písnička „%1“ už v tabulce otevřená nebyla, a tak ji Zvonika neukládala. "
                              "Otevřete ji znovu.")
            .arg(pisen.aktualniPisen);
    case error::applicationDefined:
        return chyba.cause() +
               QStringLiteral(" Písnička zůstala otevřená v tabulce, uložte ji tam jinam (F6).");
    default:
        return radaPoChybe(pisen, chyba);
    }
}

} // namespace

void KonecPisne::cmdEndEdit() {
    okoli_.panel.lblStupnice.clear();
    try {
        ulozAZavri();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        okoli_.panel.vystraha = vystraha(chyba, okoli_.pisen);
        okoli_.panel.oznamZmenu(); // beside the box, whose text is silent about the cause
        okoli_.dialogs.message(hlaseniUlozeni(chyba.number()));
    }
    vOkne_.stavBezPisne();
    vOkne_.uvolniDesku();
}

void KonecPisne::ulozAZavri() {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    if (excel.activeWorkbookName() != okoli_.pisen.aktualniPisen) {
        if (!okoli_.pisen.otevrena()) return;
        excel.activateWindow(okoli_.pisen.aktualniPisen);
    }
    okoli_.pisen.ulozAktivni();
    excel.closeActiveWorkbook();
}

} // namespace zvonika
