#include "playing/song/ZalozeniPisne.h"

#include "platform/Hlaseni.h"
#include "playing/song/PisenVOkne.h"
#include "playing/song/SlozkaPisni.h"
#include "song/RadaPoChybe.h"

namespace zvonika {

namespace {

Message hlaseniZalozeni(int cislo) {
    if (cislo != error::applicationDefined) return neocekavanaChyba(cislo);
    // The text names the folder above the working folder, on purpose.
    return {QStringLiteral("Pracovní adresář neexistuje."),
            QStringLiteral("Cesta C:\\Dokumenty\\Heligonka nenalezena. Aby mohl program správně pracovat, "
                           "vytvořte nejprve ručně tento adresář !!!"),
            Icon::Critical};
}

} // namespace

void ZalozeniPisne::cmdNovaSkladba() {
    okoli_.panel.upozorneni.clear();
    if (!SlozkaExistuje(drive_, pracovniAdresar)) zalozPracovniAdresar(drive_, okoli_.dialogs);
    const QString nazev =
        okoli_.dialogs.input(QStringLiteral("Nová skladba."), QStringLiteral("Zadejte název nové písničky."));
    if (nazev.isEmpty()) return;
    const QString plneJmeno = pracovniAdresar + u'\\' + nazev + QStringLiteral(".xls");
    PuvodniPisne puvodni;
    if (PisenExistuje(drive_, okoli_.dialogs, plneJmeno, puvodni)) {
        okoli_.dialogs.message({QStringLiteral("Založení nové skladby přerušeno."),
                                QStringLiteral("Začněte znovu a zadejte jiný název písně."),
                                Icon::Information});
        return;
    }
    zalozPisen(plneJmeno, puvodni);
}

void ZalozeniPisne::zalozPisen(const QString& plneJmeno, const PuvodniPisne& puvodni) {
    bool ulozena = false;
    try {
        zalozSesit(plneJmeno, ulozena);
        okoli_.pisen.excel().renameActiveSheet(QStringLiteral("Tonavox XII"));
        vOkne_.ukazNovou();
        for (const auto& stara : puvodni)
            stara->giveUp();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        vOkne_.zahodRozdelanou();
        if (ulozena) drive_.deleteFile(plneJmeno); // nothing was recorded in it yet
        okoli_.panel.vystraha =
            QStringList{chyba.cause(), radaPoChybe(okoli_.pisen, chyba.number())}.join(u' ').trimmed();
        vratPuvodni(puvodni);
        okoli_.panel.oznamZmenu();
        okoli_.dialogs.message(hlaseniZalozeni(chyba.number()));
    }
}

void ZalozeniPisne::vratPuvodni(const PuvodniPisne& puvodni) {
    for (const auto& stara : puvodni)
        if (const QString jmeno = stara->bringBack(); !jmeno.isEmpty())
            okoli_.panel.vystraha +=
                QStringLiteral(" Původní písnička je zachována v souboru „%1“.").arg(jmeno);
}

void ZalozeniPisne::zalozSesit(const QString& plneJmeno, bool& ulozen) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.addWorkbook();
    try {
        excel.saveActiveWorkbookAs({plneJmeno});
        ulozen = true;
        okoli_.pisen.aktualniPisen = excel.activeWorkbookName();
        okoli_.pisen.plneJmeno = plneJmeno;
    } catch (...) {
        zavriTise(excel); // no nameless workbook may stay behind in front of the user
        throw;
    }
}

} // namespace zvonika
