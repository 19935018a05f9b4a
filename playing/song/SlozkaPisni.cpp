#include "playing/song/SlozkaPisni.h"

namespace zvonika {

bool SlozkaExistuje(const Drive& drive, const QString& path) {
    return drive.folderExists(path);
}

bool PisenExistuje(Drive& drive, Dialogs& dialogs, const QString& path, PuvodniPisne& puvodni) {
    while (drive.fileExists(path)) {
        const Answer odpoved = dialogs.message(
            {QStringLiteral("Tato skladba již existuje!"),
             QStringLiteral("Přejete si vymazat z disku původní písničku a nahradit ji novou ?"),
             Icon::Exclamation, Buttons::YesNo});
        if (odpoved != Answer::Yes) return true;
        puvodni.push_back(drive.setAside(path));
    }
    return false;
}

void zalozPracovniAdresar(Drive& drive, Dialogs& dialogs) {
    dialogs.message({QStringLiteral("Pracovní adresář neexistuje."),
                     QStringLiteral("Cesta do %1 nebyla nalezena.\n"
                                    "Aby mohl program správně pracovat, bude nyní vytvořena tato složka.\n"
                                    "Do ní se budou ukládat Vaše skladby.")
                         .arg(pracovniAdresar),
                     Icon::Exclamation});
    const QString dokumenty = QStringLiteral("C:\\Dokumenty");
    const QString heligonka = QStringLiteral("C:\\Dokumenty\\Heligonka");
    if (!drive.folderExists(dokumenty)) drive.createFolder(dokumenty);
    if (!drive.folderExists(heligonka)) drive.createFolder(heligonka);
    drive.createFolder(pracovniAdresar);
}

} // namespace zvonika
