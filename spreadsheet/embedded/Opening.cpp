#include "spreadsheet/embedded/Opening.h"

#include "platform/Log.h"
#include "platform/ShownText.h"
#include "platform/files/LockSentences.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/Session.h"
#include "spreadsheet/journal/RecoverySentences.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

/// What a journal calls its workbook becomes the name of a file; it must not lead anywhere else.
bool isBareName(const QString& name) {
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && name == shownName(name) &&
           !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
}

} // namespace

Opening::Opening(Session& session, JournalFolder journals)
    : session_(session), journals_(std::move(journals)) {}

std::unique_ptr<Document> Opening::open(const QString& nativePath) {
    auto document = Document::open(nativePath, journals_, lock(nativePath));
    for (auto& pending : pending(nativePath))
        offer(*document, std::move(pending));
    return document;
}

void Opening::recoverUnsaved() {
    for (auto& pending : pending({})) {
        const QString name = pending.contents.base.name;
        const bool usable = isBareName(name) && !session_.find(name);
        auto document = std::make_unique<Document>(usable ? name : session_.nextName(), journals_);
        offer(*document, std::move(pending));
        if (document->journal().hasRecovered()) session_.add(std::move(document));
    }
}

/// A lock can outlive its owner on a computer that is no longer there; the file itself cannot be spoiled by
/// opening it, and a save notices what the other one has written.
FileLock Opening::lock(const QString& nativePath) {
    const auto holder = FileLock::holder(nativePath);
    if (!holder || holder->isThisProcess()) return FileLock::acquire(nativePath);
    const Answer answer = session_.dialogs().message(
        {jmenoTabulky, openAnyway(nativePath, *holder), Icon::Exclamation, Buttons::YesNo, Answer::No});
    if (answer != Answer::Yes) refuse(openElsewhere(nativePath, *holder));
    return FileLock::takeOver(nativePath);
}

std::vector<PendingJournal> Opening::pending(const QString& nativePath) {
    QStringList unreadable;
    auto found = journals_.pending(nativePath, &unreadable);
    for (const QString& place : unreadable) {
        qCInfo(recoveryLog).noquote() << place << "je nečitelný záznam k" << nativePath;
        session_.dialogs().message(
            {jmenoTabulky,
             unreadableJournal(QFileInfo(nativePath).fileName(), QDir::toNativeSeparators(place)),
             Icon::Exclamation});
    }
    return found;
}

void Opening::offer(Document& document, PendingJournal pending) {
    const bool taken = wanted(document, pending);
    qCInfo(recoveryLog).noquote() << document.file().name() << "změn" << pending.contents.changeCount()
                                  << (taken ? "přijato" : "odloženo");
    if (taken)
        recover(document, std::move(pending));
    else
        journals_.setAside(std::move(pending.file));
}

bool Opening::wanted(const Document& document, const PendingJournal& pending) {
    const bool changedSince = pending.contents.base.hash != document.file().hash();
    const QString question = recoveryQuestion(document.file().name(), pending.contents, changedSince);
    return session_.dialogs().message({jmenoTabulky, question, Icon::Question, Buttons::YesNo}) ==
           Answer::Yes;
}

void Opening::recover(Document& document, PendingJournal pending) {
    const int refused = document.recover(std::move(pending));
    if (refused == 0) return;
    session_.dialogs().message(
        {jmenoTabulky, partlyRecovered(document.file().name(), refused), Icon::Exclamation});
}

} // namespace zvonika
