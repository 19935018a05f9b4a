#include "spreadsheet/embedded/Opening.h"

#include "platform/ShownText.h"
#include "platform/files/OpeningLock.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/Session.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

/// What a journal calls its workbook becomes the name of a file; it must be shown as it is and lead nowhere
/// else.
bool mayNameFile(const QString& name) {
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && name == shownName(name) &&
           !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
}

} // namespace

Opening::Opening(Session& session, JournalFolder journals)
    : session_(session), journals_(std::move(journals)), offers_(session.dialogs(), jmenoTabulky, journals_) {
}

std::unique_ptr<Document> Opening::open(const QString& nativePath) {
    // The first question to a folder that may not answer.
    session_.files().read(nativePath, [nativePath] { QFileInfo::exists(nativePath); });
    const auto beside = [this](const std::function<void()>& work) { session_.files().write(work); };
    auto document = Document::open(nativePath, journals_,
                                   lockToOpen(session_.dialogs(), jmenoTabulky, nativePath, beside),
                                   [this](const QString& path) { return read(path); });
    for (auto& pending : offers_.pending(nativePath))
        offer(*document, std::move(pending));
    return document;
}

WorkbookFile Opening::read(const QString& nativePath) {
    const auto read = std::make_shared<std::optional<WorkbookFile>>();
    session_.files().read(nativePath, [read, nativePath] { *read = readWorkbook(nativePath); });
    return std::move(**read);
}

void Opening::recoverUnsaved() {
    for (auto& pending : offers_.pending({})) {
        const QString name = pending.contents.base.name;
        const bool usable = mayNameFile(name) && !session_.find(name);
        auto document = std::make_unique<Document>(usable ? name : session_.nextName(), journals_);
        offer(*document, std::move(pending));
        if (document->journal().hasRecovered()) session_.add(std::move(document));
    }
}

void Opening::offer(Document& document, PendingJournal pending) {
    if (!offers_.wanted(pending, document.file().name(), document.file().hash())) return;
    offers_.tellRefused(document.file().name(), document.recover(std::move(pending)));
}

} // namespace zvonika
