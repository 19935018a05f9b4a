#include "playing/song/ZalozeniPisne.h"

#include "platform/Hlaseni.h"
#include "playing/song/PisenVOkne.h"
#include "playing/song/SlozkaPisni.h"

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
    if (PisenExistuje(drive_, okoli_.dialogs, plneJmeno)) {
        okoli_.dialogs.message({QStringLiteral("Založení nové skladby přerušeno."),
                                QStringLiteral("Začněte znovu a zadejte jiný název písně."),
                                Icon::Information});
        return;
    }
    zalozPisen(plneJmeno);
}

void ZalozeniPisne::zalozPisen(const QString& plneJmeno) {
    try {
        zalozSesit(plneJmeno);
        okoli_.pisen.excel().renameActiveSheet(QStringLiteral("Tonavox XII"));
        vOkne_.ukazNovou();
    } catch (const std::exception& vyjimka) {
        const RuntimeError chyba = chybaSCislem(vyjimka);
        vOkne_.zahodRozdelanou();
        okoli_.dialogs.message(hlaseniZalozeni(chyba.number()));
        okoli_.panel.upozorneni = chyba.cause();
        okoli_.panel.oznamZmenu();
    }
}

void ZalozeniPisne::zalozSesit(const QString& plneJmeno) {
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

} // namespace zvonika
