#include "song/embedded/RecoverySentences.h"

namespace zvonika {

namespace {

bool isFew(int count) {
    return count >= 2 && count <= 4;
}

QString remained(int count) {
    if (count == 1) return QStringLiteral("zůstala 1 neuložená změna");
    if (isFew(count)) return QStringLiteral("zůstaly %1 neuložené změny").arg(count);
    return QStringLiteral("zůstalo %1 neuložených změn").arg(count);
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
    QString text = QStringLiteral("Program minule neskončil řádně. %1 „%2“ po něm %3 (poslední %4).")
                       .arg(kind, workbook, remained(count), inWords(journal.lastChange()));
    if (changedSince)
        text += QStringLiteral("\n\nPozor: soubor se od té doby změnil. Změny patří k jeho dřívější podobě.");
    if (neverSaved) return text + QStringLiteral("\n\nChcete sešit otevřít?");
    return text +
           (count == 1 ? QStringLiteral("\n\nChcete ji vrátit? ")
                       : QStringLiteral("\n\nChcete je vrátit? ")) +
           QStringLiteral("Jinak se sešit otevře tak, jak byl uložen.");
}

QString partlyRecovered(const QString& workbook, int refused) {
    return QStringLiteral("V sešitu „%1“ se nepodařilo vrátit %2 z těch, které po programu zůstaly. "
                          "Zkontrolujte ho prosím, než ho uložíte.")
        .arg(workbook, refused == 1 ? QStringLiteral("1 změnu") : changesInWords(refused));
}

} // namespace zvonika
