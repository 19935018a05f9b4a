#include "spreadsheet/journal/RecoveryOffers.h"

#include "platform/Dialogs.h"
#include "platform/Log.h"
#include "spreadsheet/journal/RecoverySentences.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace zvonika {

RecoveryOffers::RecoveryOffers(Dialogs& dialogs, QString title, JournalFolder journals)
    : dialogs_(dialogs), title_(std::move(title)), journals_(std::move(journals)) {}

std::vector<PendingJournal> RecoveryOffers::pending(const QString& song) {
    JournalFolder::Unusable unusable;
    auto found = journals_.pending(song, &unusable);
    const QString name = QFileInfo(song).fileName();
    for (const QString& place : unusable.damaged) {
        qCInfo(recoveryLog).noquote() << place << "je nečitelný záznam k" << song;
        dialogs_.message(
            {title_, unreadableJournal(name, QDir::toNativeSeparators(place)), Icon::Exclamation});
    }
    for (const auto& [place, failure] : unusable.closed) {
        qCInfo(recoveryLog).noquote() << place << "nelze otevřít, chyba" << failure.value();
        dialogs_.message(
            {title_, closedJournal(name, QDir::toNativeSeparators(place), failure), Icon::Exclamation});
    }
    return found;
}

bool RecoveryOffers::wanted(PendingJournal& pending, const QString& workbook, const QByteArray& hash) {
    const bool changedSince = pending.contents.base.hash != hash;
    const QString question = recoveryQuestion(workbook, pending.contents, changedSince);
    const bool taken = dialogs_.message({title_, question, Icon::Question, Buttons::YesNo}) == Answer::Yes;
    qCInfo(recoveryLog).noquote() << workbook << "změn" << pending.contents.changeCount()
                                  << (taken ? "přijato" : "odloženo");
    if (!taken) journals_.setAside(std::move(pending.file));
    return taken;
}

void RecoveryOffers::tellRefused(const QString& workbook, int refused) {
    if (refused > 0) dialogs_.message({title_, partlyRecovered(workbook, refused), Icon::Exclamation});
}

} // namespace zvonika
