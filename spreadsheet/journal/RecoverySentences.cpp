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

QString whose(const QString& workbook) {
    return workbook.isEmpty() ? QStringLiteral("sešitu, který ještě nebyl uložen,")
                              : QStringLiteral("sešitu „%1“").arg(shownName(workbook));
}

QString readReason(const std::error_code& error) {
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return QStringLiteral("nemáte oprávnění ho číst a měnit");
    if (error == std::errc::read_only_file_system) return QString::fromUtf16(reason::readOnlyDisk);
    return QStringLiteral("při čtení z disku nastala chyba %1").arg(error.value());
}

} // namespace

QString changesInWords(int count) {
    if (count == 1) return QStringLiteral("1 změna");
    if (isFew(count)) return QStringLiteral("%1 změny").arg(count);
    return QStringLiteral("%1 změn").arg(count);
}

QString momentInWords(const QDateTime& when) {
    return when.toLocalTime().toString(QStringLiteral("d. M. yyyy 'v' H:mm"));
}

QString recoveryQuestion(const QString& workbook, const JournalContents& journal, bool changedSince) {
    const int count = journal.changeCount();
    const bool neverSaved = journal.base.path.isEmpty();
    const QString kind =
        neverSaved ? QStringLiteral("V dosud neuloženém sešitu") : QStringLiteral("V sešitu");
    const bool renamed = !neverSaved && journal.base.name != workbook;
    const QString former =
        renamed ? QStringLiteral(" (dříve „%1“)").arg(shownName(journal.base.name)) : QString();
    QString text =
        QStringLiteral("%1 „%2“%3 %4 (poslední %5).")
            .arg(kind, shownName(workbook), former, remained(count), momentInWords(journal.lastChange()));
    if (changedSince)
        text += QStringLiteral("\n\nPozor: soubor se od té doby změnil. Změny patří k jeho dřívější podobě.");
    return text + QStringLiteral("\n\n") + (neverSaved ? openingOffered() : returnOffered(count));
}

QString unreadableJournal(const QString& workbook, const QString& place) {
    return QStringLiteral(
               "Záznam neuložených změn %1 je poškozený a nic z něj vrátit nejde; leží odložen v souboru "
               "„%2“.")
        .arg(whose(workbook), shownName(place));
}

QString closedJournal(const QString& workbook, const QString& place, const std::error_code& error) {
    return QStringLiteral("Záznam neuložených změn %1 nelze otevřít: %2. Leží v souboru „%3“; až to půjde, "
                          "program změny nabídne.")
        .arg(whose(workbook), readReason(error), shownName(place));
}

QString closedJournal(const QString& place, const std::error_code& error) {
    return QStringLiteral(
               "Záznam neuložených změn jedné z písniček nelze otevřít: %1. Leží v souboru „%2“; až "
               "to půjde, program změny nabídne.")
        .arg(readReason(error), shownName(place));
}

QString partlyRecovered(const QString& workbook, int refused) {
    return QStringLiteral("V sešitu „%1“ se nepodařilo vrátit %2 z těch, které po programu zůstaly. "
                          "Zkontrolujte ho prosím, než ho uložíte.")
        .arg(shownName(workbook), refused == 1 ? QStringLiteral("1 změnu") : changesInWords(refused));
}

QString journalRefused(const std::error_code& error) {
    const QString why = error == std::errc::no_such_file_or_directory
                            ? QStringLiteral("složku pro jejich záznam nelze vytvořit")
                            : reason::ofDisk(error);
    return QStringLiteral("Změny nejsou zajištěny proti výpadku: %1.").arg(why);
}

} // namespace zvonika
