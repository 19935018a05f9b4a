#include "spreadsheet/embedded/Opening.h"

#include "platform/files/LockSentences.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/Session.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

Opening::Opening(Session& session, JournalFolder journals)
    : session_(session), journals_(std::move(journals)), offers_(session.dialogs(), jmenoTabulky, journals_) {
}

std::unique_ptr<Document> Opening::open(const QString& nativePath) {
    auto document = Document::open(nativePath, journals_, lock(nativePath));
    for (auto& pending : offers_.pending(nativePath))
        offer(*document, std::move(pending));
    return document;
}

void Opening::recoverUnsaved() {
    for (auto& pending : offers_.pending({})) {
        const QString name = pending.contents.base.name;
        auto document =
            std::make_unique<Document>(session_.find(name) ? session_.nextName() : name, journals_);
        offer(*document, std::move(pending));
        if (document->journal().hasRecovered()) session_.add(std::move(document));
    }
}

/// A lock can outlive its owner on a computer that is no longer there; the file itself cannot be spoiled by
/// opening it, and a save notices what the other one has written.
FileLock Opening::lock(const QString& nativePath) {
    const auto holder = FileLock::holder(nativePath);
    if (!holder || holder->isThisProcess()) return FileLock::acquire(nativePath);
    const QString question =
        QStringLiteral("Soubor „%1“ má už otevřený někdo jiný:\n%2.\n\n"
                       "Kdybyste ho měnili oba, mohl by jeden z Vás o svou práci přijít. "
                       "Chcete ho přesto otevřít?")
            .arg(QFileInfo(nativePath).fileName(), whoHolds(*holder));
    const Answer answer =
        session_.dialogs().message({jmenoTabulky, question, Icon::Exclamation, Buttons::YesNo, Answer::No});
    if (answer != Answer::Yes) refuse(openElsewhere(nativePath, *holder));
    return FileLock::takeOver(nativePath);
}

void Opening::offer(Document& document, PendingJournal pending) {
    if (!offers_.wanted(pending, document.file().name(), document.file().hash())) return;
    offers_.tellRefused(document.file().name(), document.recover(std::move(pending)));
}

} // namespace zvonika
