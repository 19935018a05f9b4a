#include "spreadsheet/journal/RecoverySentences.h"

#include "platform/ShownText.h"
#include "spreadsheet/FileRefusals.h"

namespace zvonika {

namespace {

bool isFew(int count) {
    return count >= 2 && count <= 4;
}

QString remained(int count) {
    if (count == 1) return QStringLiteral("zůstala z minula 1 neuložená změna");
    if (isFew(count)) return QStringLiteral("zůstaly z minula %1 neuložené změny").arg(count);
    return QStringLiteral("zůstalo z minula %1 neuložených změn").arg(count);
}

QString openingOffered() {
    return QStringLiteral("Chcete sešit otevřít? Jinak se odloží a program ho už nenabídne.");
}

QString returnOffered(int count) {
    if (count == 1)
        return QStringLiteral(
            "Chcete ji vrátit? Jinak se sešit otevře tak, jak byl uložen, a tato změna se odloží; "
            "program ji už nenabídne.");
    return QStringLiteral(
        "Chcete je vrátit? Jinak se sešit otevře tak, jak byl uložen, a tyto změny se odloží; "
        "program je už nenabídne.");
}

QString inWords(const QDateTime& when) {
    return when.toLocalTime().toString(QStringLiteral("d. M. yyyy 'v' H:mm"));
}

} // namespace

QString changesInWords(int count) {
    if (count == 1) return QStringLiteral("1 změna");
    if (isFew(count)) return QStringLiteral("%1 změny").arg(count);
    return QStringLiteral("%1 změn").arg(count);
}

QString recoveryQuestion(const QString& workbook, const JournalContents& journal, bool changedSince) {
    const int count = journal.changeCount();
    const bool neverSaved = journal.base.path.isEmpty();
    const QString kind =
        neverSaved ? QStringLiteral("V dosud neuloženém sešitu") : QStringLiteral("V sešitu");
    QString text = QStringLiteral("%1 „%2“ %3 (poslední %4).")
                       .arg(kind, shownName(workbook), remained(count), inWords(journal.lastChange()));
    if (changedSince)
        text += QStringLiteral("\n\nPozor: soubor se od té doby změnil. Změny patří k jeho dřívější podobě.");
    return text + QStringLiteral("\n\n") + (neverSaved ? openingOffered() : returnOffered(count));
}

QString unreadableJournal(const QString& workbook, const QString& place) {
    const QString whose = workbook.isEmpty() ? QStringLiteral("sešitu, který ještě nebyl uložen,")
                                             : QStringLiteral("sešitu „%1“").arg(shownName(workbook));
    return QStringLiteral(
               "Záznam neuložených změn %1 je poškozený a nic z něj vrátit nejde; leží odložen v souboru "
               "„%2“.")
        .arg(whose, shownName(place));
}

QString partlyRecovered(const QString& workbook, int refused) {
    return QStringLiteral("V sešitu „%1“ se nepodařilo vrátit %2 z těch, které po programu zůstaly. "
                          "Zkontrolujte ho prosím, než ho uložíte.")
        .arg(shownName(workbook), refused == 1 ? QStringLiteral("1 změnu") : changesInWords(refused));
}

QString journalRefused(const std::error_code& error) {
    return QStringLiteral("změny nejsou zajištěny proti výpadku: %1").arg(reason::ofDisk(error));
}

} // namespace zvonika
