#include "spreadsheet/embedded/Document.h"

#include "platform/Log.h"
#include "platform/files/AtomicFile.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/Replay.h"
#include "spreadsheet/journal/ImageChanges.h"

namespace zvonika {

namespace {

constexpr int gripColumn = 2; ///< B, where the cursor of a song stands

} // namespace

Document::Document(const QString& name, JournalFolder journals)
    : cells_(xls::Workbook::create(u"List1")), cursor_(cells_.book()), file_(name),
      journal_(std::move(journals), journalBase()),
      editing_(cells_, cursor_, [this](auto changes) { noteChanges(std::move(changes)); }) {
    passSignalsOn();
}

Document::Document(WorkbookFile file, const QString& path, JournalFolder journals, FileLock lock)
    : cells_(std::move(file.book)), cursor_(cells_.book()),
      file_(path, std::move(file.hash), cells_.book().isOldFormat(), std::move(lock)),
      journal_(std::move(journals), journalBase()),
      editing_(cells_, cursor_, [this](auto changes) { noteChanges(std::move(changes)); }) {
    passSignalsOn();
}

void Document::passSignalsOn() {
    connect(&editing_, &Editing::cellsChanged, this, &Document::cellsChanged);
    connect(&editing_, &Editing::columnWidthChanged, this, &Document::columnWidthChanged);
    connect(&editing_, &Editing::sheetRenamed, this, &Document::sheetsChanged);
    connect(&editing_, &Editing::historyChanged, this, &Document::historyChanged);
    connect(&cursor_, &SheetCursor::sheetActivated, this, &Document::sheetsChanged);
    connect(&cursor_, &SheetCursor::selectionChanged, this, &Document::selectionChanged);
    connect(&file_, &DocumentFile::nameChanged, this, &Document::nameChanged);
    connect(&file_, &DocumentFile::modifiedChanged, this, &Document::modifiedChanged);
    connect(&journal_, &WorkbookJournal::troubleChanged, this, &Document::journalTroubleChanged);
}

std::unique_ptr<Document> Document::open(const QString& nativePath, JournalFolder journals) {
    return open(nativePath, std::move(journals), FileLock::acquire(nativePath));
}

std::unique_ptr<Document> Document::open(const QString& nativePath, JournalFolder journals, FileLock lock,
                                         const WorkbookReader& read) {
    if (lock.foundStale()) removeLeftovers(nativePath);
    WorkbookFile file = read(nativePath);
    if (file.book.sheetCount() == 0) refuse(openRefused(nativePath, xls::Refusal::Damaged));
    qCInfo(openingLog).noquote() << nativePath << "otevřen, listů" << file.book.sheetCount();
    return std::unique_ptr<Document>(
        new Document(std::move(file), nativePath, std::move(journals), std::move(lock)));
}

void Document::noteChanges(std::vector<JournalChange> changes) {
    file_.markModified();
    journal_.note(std::move(changes));
}

DocumentFile::Source Document::source() {
    return {[this] {
                // The cursor alone is no reason to turn an older file into a newer one.
                if (!file_.isOldFormat() || file_.isModified()) cursor_.storeIn(cells_.book());
                return cells_.book().image();
            },
            [this](const QString& nativePath, const QByteArray& hash) { journal_.saving(nativePath, hash); }};
}

void Document::save() {
    file_.save(source());
    journal_.saved(journalBase());
}

void Document::saveAs(const QString& nativePath) {
    const bool elsewhere = !file_.isAt(nativePath);
    file_.saveAs(nativePath, source());
    if (elsewhere) journal_.setAsideOf(nativePath);
    journal_.saved(journalBase());
}

int Document::recover(PendingJournal pending) {
    const std::vector<JournalGroup> groups = pending.contents.groups;
    const int refused = replay(cells_, groups);
    journal_.takeOver(std::move(pending));
    file_.markModified();
    showLast(groups);
    qCInfo(recoveryLog).noquote() << file_.name() << "obnoven, příkazů" << groups.size() << "odmítnuto změn"
                                  << refused;
    return refused;
}

void Document::showLast(const std::vector<JournalGroup>& groups) {
    const auto cell = lastWritten(groups);
    if (!cell || cell->sheet > cells_.sheetCount()) return;
    cursor_.activateSheet(cell->sheet);
    cursor_.select({cell->cell.row, gripColumn});
}

} // namespace zvonika
