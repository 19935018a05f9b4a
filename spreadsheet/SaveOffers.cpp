#include "spreadsheet/SaveOffers.h"

#include "platform/Dialogs.h"
#include "platform/ShownText.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveSentences.h"

namespace zvonika {

bool wantsToSave(Dialogs& dialogs, const QString& title, const QString& workbook) {
    const QString question = QStringLiteral("Sešit „%1“ má neuložené změny. Chcete ho uložit? "
                                            "Odpovíte-li Ne, změny se ztratí.")
                                 .arg(shownName(workbook));
    return dialogs.message({title, question, Icon::Exclamation, Buttons::YesNo}) == Answer::Yes;
}

bool mayReplace(Dialogs& dialogs, const QString& title, const QString& fileName) {
    const QString question = QStringLiteral("Soubor „%1“ už existuje. Chcete ho nahradit?\n\nOdpovíte-li Ne, "
                                            "zůstane, jak je; nic se neuloží a Zvonika oznámí chybu.")
                                 .arg(shownName(fileName));
    return dialogs.message({title, question, Icon::Exclamation, Buttons::YesNo, Answer::No}) == Answer::Yes;
}

bool mayOverwrite(Dialogs& dialogs, const QString& title, const QString& nativePath) {
    const QString question = overwriteQuestion(nativePath);
    return dialogs.message({title, question, Icon::Exclamation, Buttons::YesNo, Answer::No}) == Answer::Yes;
}

void refuseNotReplaced(const QString& fileName) {
    refuse(QStringLiteral("Soubor „%1“ zůstal, jaký byl; sešit uložen není.").arg(shownName(fileName)));
}

std::optional<QString> askSaveName(Dialogs& dialogs, const QString& suggested) {
    const auto chosen =
        dialogs.saveFile(QStringLiteral("Uložit jako"), QStringLiteral("Excel Files,*.xls"), suggested);
    return chosen ? std::optional(withXlsEnding(*chosen)) : std::nullopt;
}

QString withXlsEnding(const QString& name) {
    const QString ending = QStringLiteral(".xls");
    return name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

} // namespace zvonika
