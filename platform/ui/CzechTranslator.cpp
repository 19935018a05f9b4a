#include "platform/ui/CzechTranslator.h"

#include <QHash>

namespace zvonika {

namespace {

// By source text: the same words mean the same in every one of the toolkit's contexts that a user meets here.
const QHash<QByteArray, QString>& table() {
    static const QHash<QByteArray, QString> texts{
        {"&Undo", QStringLiteral("&Zpět")},
        {"&Redo", QStringLiteral("Zno&vu")},
        {"Cu&t", QStringLiteral("&Vyjmout")},
        {"&Copy", QStringLiteral("&Kopírovat")},
        {"&Paste", QStringLiteral("V&ložit")},
        {"Delete", QStringLiteral("Smazat")},
        {"&Delete", QStringLiteral("S&mazat")},
        {"Select All", QStringLiteral("Vybrat vše")},
        {"Name", QStringLiteral("Název")},
        {"Size", QStringLiteral("Velikost")},
        {"Type", QStringLiteral("Typ")},
        {"Kind", QStringLiteral("Druh")},
        {"Date Modified", QStringLiteral("Změněno")},
        {"%1 File", QStringLiteral("Soubor %1")},
        {"File", QStringLiteral("Soubor")},
        {"File Folder", QStringLiteral("Složka se soubory")},
        {"Folder", QStringLiteral("Složka")},
        {"Drive", QStringLiteral("Jednotka")},
        {"Computer", QStringLiteral("Počítač")},
        {"My Computer", QStringLiteral("Tento počítač")},
        {"Back", QStringLiteral("Zpět")},
        {"Go back", QStringLiteral("Jít zpět")},
        {"Forward", QStringLiteral("Vpřed")},
        {"Go forward", QStringLiteral("Jít vpřed")},
        {"Parent Directory", QStringLiteral("Nadřazená složka")},
        {"Go to the parent directory", QStringLiteral("Přejít do nadřazené složky")},
        {"Create New Folder", QStringLiteral("Vytvořit novou složku")},
        {"Create a New Folder", QStringLiteral("Vytvořit novou složku")},
        {"List View", QStringLiteral("Seznam")},
        {"Change to list view mode", QStringLiteral("Zobrazit jako seznam")},
        {"Detail View", QStringLiteral("Podrobnosti")},
        {"Change to detail view mode", QStringLiteral("Zobrazit podrobnosti")},
        {"Sidebar", QStringLiteral("Postranní panel")},
        {"List of places and bookmarks", QStringLiteral("Místa a záložky")},
        {"Files", QStringLiteral("Soubory")},
        {"&Rename", QStringLiteral("Přejmenovat")},
        {"Show &hidden files", QStringLiteral("Zobrazit &skryté soubory")},
        {"&New Folder", QStringLiteral("&Nová složka")},
        {"New Folder", QStringLiteral("Nová složka")},
        {"Recent Places", QStringLiteral("Nedávná místa")},
        {"Remove", QStringLiteral("Odebrat")},
        {"%1\nFile not found.\nPlease verify the correct file name was given.",
         QStringLiteral("%1\nSoubor nebyl nalezen.\nZkontrolujte prosím jeho název.")},
        {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         QStringLiteral("%1\nSložka nebyla nalezena.\nZkontrolujte prosím její název.")},
        {"'%1' is write protected.\nDo you want to delete it anyway?",
         QStringLiteral("Soubor „%1“ je chráněn proti zápisu.\nChcete ho přesto smazat ?")},
        {"Are you sure you want to delete '%1'?", QStringLiteral("Opravdu chcete smazat „%1“ ?")},
        {"Could not delete directory.", QStringLiteral("Složku nelze smazat.")},
        {"&Yes", QStringLiteral("&Ano")},
        {"&No", QStringLiteral("&Ne")},
        {"Cancel", QStringLiteral("Storno")},
        {"&OK", QStringLiteral("&OK")},
        {"&Open", QStringLiteral("&Otevřít")},
        {"&Save", QStringLiteral("&Uložit")},
        {"Close", QStringLiteral("Zavřít")},
        {"Today", QStringLiteral("Dnes")},
    };
    return texts;
}

bool isToolkits(const char* context) {
    return context && context[0] == 'Q';
}

} // namespace

QString CzechTranslator::translate(const char* context, const char* sourceText, const char*, int) const {
    if (!isToolkits(context) || !sourceText) return {};
    return table().value(QByteArray::fromRawData(sourceText, qsizetype(qstrlen(sourceText))));
}

} // namespace zvonika
