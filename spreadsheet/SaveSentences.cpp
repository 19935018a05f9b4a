#include "spreadsheet/SaveSentences.h"

#include "platform/ShownText.h"

#include <QDateTime>
#include <QFileInfo>

namespace zvonika {

namespace {

const QString noTwin =
    QStringLiteral(" Odpovíte-li Ne, otevření ani uložení se neprovede a Zvonika oznámí chybu.");

} // namespace

QString overwriteQuestion(const QString& nativePath) {
    const QString when = QFileInfo(nativePath).lastModified().toString(QStringLiteral("d. M. yyyy 'v' H:mm"));
    return QStringLiteral("Soubor „%1“ na disku mezitím změnil jiný program (%2).\n\n"
                          "Když ho teď uložíte, to, co v něm ten program změnil, zmizí. "
                          "Chcete ho přesto přepsat?\n\nOdpovíte-li Ne, soubor zůstane, jak je teď na disku, "
                          "a sešit zůstane neuložený v okně tabulky; kde ho ukládala Zvonika, oznámí chybu.")
        .arg(shownFileName(nativePath), when);
}

QString notOverwritten(const QString& nativePath) {
    return QStringLiteral("Soubor „%1“ uložen není: na disku ho mezitím změnil jiný program. Sešit zůstává "
                          "otevřen v okně tabulky, kde ho můžete uložit pod jiným jménem.")
        .arg(shownFileName(nativePath));
}

QString conversionQuestion(const QString& workbook) {
    return QStringLiteral(
               "Sešit „%1“ je ve starším formátu .xls (verze 5.0 nebo 95).\n\n"
               "Uložením se převede do dnešního formátu .xls. Texty, čísla, listy s buňkami, jejich vzhled a "
               "vzorce v rámci jednoho listu zůstanou. Vzorce, které počítají s jinými listy, pojmenovanými "
               "oblastmi, jinými soubory nebo s hodnotami ve složených závorkách (maticové konstanty), "
               "nahradí "
               "jejich výsledky; písmo jednotlivých slov uvnitř buňky (například jedno slovo tučně) se změní "
               "na písmo celé buňky; komentáře, obrázky, grafy, listy "
               "s grafy a makry a pojmenované oblasti se ztratí a programy z té doby sešit už neotevřou. "
               "Kdo chce mít i původní soubor, ať sešit uloží pod jiným "
               "jménem.\n\nChcete ho převést a uložit? Odpovíte-li Ne, zůstane neuložený v okně tabulky; kde "
               "ho "
               "ukládala Zvonika, oznámí chybu.")
        .arg(shownName(workbook));
}

QString notConverted(const QString& nativePath) {
    return QStringLiteral(
               "Soubor „%1“ uložen není: sešit měl zůstat ve starším formátu. Dál je otevřen v okně "
               "tabulky, kde ho můžete uložit pod jiným jménem.")
        .arg(shownFileName(nativePath));
}

QString twinQuestion(const QString& workbook, bool modified) {
    if (!modified)
        return QStringLiteral("Sešit „%1“ je ještě otevřen v okně tabulky a dva sešity téhož jména najednou "
                              "otevřít nelze.\n\nChcete ho zavřít?")
                   .arg(shownName(workbook)) +
               noTwin;
    return QStringLiteral("Sešit „%1“ je ještě otevřen v okně tabulky, má neuložené změny a dva sešity téhož "
                          "jména najednou otevřít nelze.\n\nChcete ho uložit pod jiným jménem a zavřít?")
               .arg(shownName(workbook)) +
           noTwin;
}

} // namespace zvonika
