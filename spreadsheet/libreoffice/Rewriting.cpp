#include "spreadsheet/libreoffice/Rewriting.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/SaveSentences.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

namespace zvonika {

namespace {

QString rewriteQuestion(const QString& workbook) {
    return QStringLiteral(
               "Sešit „%1“ napsal jiný program a Vy jste v něm nic nezměnili.\n\n"
               "Calc by ho při uložení napsal celý znovu a po svém: může se tím změnit vzhled a ztratit, "
               "čemu Calc nerozumí, třeba makra nebo ovládací prvky. Neuložíte-li ho, zůstane, jaký "
               "byl, jen příště nezačne tam, kde v něm teď jste.\n\nChcete ho přesto uložit?")
        .arg(workbook);
}

QString olderFormatQuestion(const QString& workbook) {
    return QStringLiteral(
               "Sešit „%1“ je ve starším formátu .xls (verze 5.0 nebo 95).\n\n"
               "Calc ho uložením převede do dnešního formátu .xls a napíše po svém; programy z té doby "
               "ho už neotevřou. Kdo chce mít i původní soubor, ať sešit uloží pod jiným jménem.\n\n"
               "Chcete ho převést a uložit?")
        .arg(workbook);
}

} // namespace

bool Rewriting::wanted(const OpenWorkbook& workbook) {
    if (!workbook.modified && !wantedUnchanged(workbook)) return false;
    if (workbook.format == WorkbookFormat::OldXls && !agreed(olderFormatQuestion(workbook.name), Answer::Yes))
        refuse(notConverted(workbook.path));
    if (files_.isChanged(workbook.path) && !mayOverwrite(dialogs_, jmenoCalcu, workbook.path))
        refuse(notOverwritten(workbook.path));
    return true;
}

// Where the cursor stands is no reason to turn an older file into a newer one.
bool Rewriting::wantedUnchanged(const OpenWorkbook& workbook) {
    if (workbook.format == WorkbookFormat::OldXls || left_.contains(workbook.id)) return false;
    if (!files_.isForeign(workbook.path) || agreed(rewriteQuestion(workbook.name), Answer::No)) return true;
    left_.insert(workbook.id);
    return false;
}

bool Rewriting::agreed(const QString& question, Answer proposed) {
    return dialogs_.message({jmenoCalcu, question, Icon::Exclamation, Buttons::YesNo, proposed}) ==
           Answer::Yes;
}

} // namespace zvonika
