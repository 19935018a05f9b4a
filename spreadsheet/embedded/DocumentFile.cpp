#include "platform/files/AtomicFile.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/WorkbookFile.h"
#include "spreadsheet/embedded/journal/ContentHash.h"

#include <QFileInfo>

#include <algorithm>

namespace zvonika {

Document::Document(const QString& name, JournalFolder journals)
    : book_(xls::Workbook::create(u"List1")), name_(name), selections_(1),
      journal_(std::move(journals), journalBase()) {}

Document::Document(WorkbookFile file, const QString& path, JournalFolder journals, FileLock lock)
    : book_(std::move(file.book)), name_(QFileInfo(path).fileName()), path_(path), lock_(std::move(lock)),
      fileHash_(std::move(file.hash)), oldFormat_(book_.isOldFormat()),
      journal_(std::move(journals), journalBase()) {
    readCursor();
}

Document::~Document() {
    if (givenUp_) journal_.startAfresh();
}

std::unique_ptr<Document> Document::open(const QString& nativePath, JournalFolder journals) {
    return open(nativePath, std::move(journals), FileLock::acquire(nativePath));
}

std::unique_ptr<Document> Document::open(const QString& nativePath, JournalFolder journals, FileLock lock) {
    if (lock.foundStale()) removeLeftovers(nativePath);
    WorkbookFile file = readWorkbook(nativePath);
    if (file.book.sheetCount() == 0) refuse(openRefused(nativePath, xls::Refusal::Damaged));
    return std::unique_ptr<Document>(
        new Document(std::move(file), nativePath, std::move(journals), std::move(lock)));
}

void Document::readCursor() {
    for (int sheet = 0; sheet < book_.sheetCount(); ++sheet) {
        const auto cell = book_.activeCell(sheet);
        const CellPosition active{cell.row + 1, cell.column + 1};
        selections_.push_back({single(active), active});
    }
    activeSheet_ = std::clamp(book_.activeSheet() + 1, 1, book_.sheetCount());
}

void Document::writeCursor() {
    for (int sheet = 1; sheet <= sheetCount(); ++sheet) {
        const CellPosition cell = selection(sheet).active;
        book_.setActiveCell(sheet - 1, {cell.row - 1, cell.column - 1});
    }
    book_.setActiveSheet(activeSheet_ - 1);
}

bool Document::isChangedOnDisk() const {
    if (path_.isEmpty() || !QFileInfo::exists(path_)) return false;
    const QByteArray now = contentHashOfFile(path_);
    return now != fileHash_ && now != writingHash_;
}

/// The journal learns of the new contents before they are in the file, so that a crash at any moment leaves
/// either changes that are still to be made, or a file that is known to hold them.
void Document::store(const QString& nativePath) {
    refusingToSave(nativePath, [&] {
        // The cursor alone is no reason to turn an older file into a newer one.
        if (!oldFormat_ || modified_) writeCursor();
        const xls::Bytes bytes = book_.save();
        QByteArray hash = contentHash(bytes);
        journal_.saving(nativePath, hash);
        writingHash_ = hash;
        writeAtomically(nativePath, bytes);
        fileHash_ = std::move(hash);
    });
}

void Document::save() {
    store(path_);
    becomeSaved();
}

void Document::saveAs(const QString& nativePath) {
    const bool sameFile = !path_.isEmpty() && FileLock::lockName(nativePath) == FileLock::lockName(path_);
    FileLock lock = sameFile ? std::move(lock_) : FileLock::acquire(nativePath);
    try {
        store(nativePath);
    } catch (...) {
        if (sameFile) lock_ = std::move(lock);
        throw;
    }
    lock_ = std::move(lock);
    if (!sameFile) journal_.folder().setAsideAll(nativePath); // of a song that is no more
    takePath(nativePath);
    becomeSaved();
}

void Document::becomeSaved() {
    oldFormat_ = oldFormat_ && !modified_;
    recovered_ = false;
    journal_.startAfresh(journalBase());
    setModified(false);
    Q_EMIT journalTroubleChanged();
}

void Document::takePath(const QString& nativePath) {
    path_ = nativePath;
    name_ = QFileInfo(nativePath).fileName();
    Q_EMIT nameChanged();
}

QString Document::journalTrouble() const {
    return journal_.trouble() ? journalRefused(journal_.trouble()) : QString();
}

// One flush for all that a command of the program changes: it is queued, so it comes when the command is
// done. Painting has a lower priority and comes behind it.
void Document::note(std::vector<JournalChange> changes) {
    givenUp_ = false;
    const auto before = journal_.trouble();
    journal_.record(std::move(changes));
    if (journal_.trouble() != before) Q_EMIT journalTroubleChanged();
    if (!std::exchange(flushDue_, true))
        QMetaObject::invokeMethod(this, &Document::flushJournal, Qt::QueuedConnection);
}

void Document::flushJournal() {
    flushDue_ = false;
    const auto before = journal_.trouble();
    journal_.flush();
    if (journal_.trouble() != before) Q_EMIT journalTroubleChanged();
}

} // namespace zvonika
