#include "spreadsheet/journal/WorkbookJournal.h"

#include "spreadsheet/journal/RecoverySentences.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zvonika {

WorkbookJournal::~WorkbookJournal() {
    if (givenUp_) journal_.startAfresh();
}

void WorkbookJournal::takeOver(PendingJournal pending) {
    journal_.takeOver(std::move(pending));
    recovered_ = true;
    givenUp_ = false;
}

void WorkbookJournal::saving(const QString& nativePath, const QByteArray& hash) {
    endGroup();
    journal_.saving(nativePath, hash);
}

void WorkbookJournal::saved(const JournalBase& base) {
    recovered_ = false;
    endGroup();
    journal_.startAfresh(base);
    Q_EMIT troubleChanged();
}

QString WorkbookJournal::trouble() const {
    return journal_.trouble() ? journalRefused(journal_.trouble()) : QString();
}

void WorkbookJournal::note(std::vector<JournalChange> changes) {
    givenUp_ = false;
    if (grouping_)
        std::ranges::move(changes, std::back_inserter(group_));
    else
        record(std::move(changes));
}

void WorkbookJournal::beginGroup() {
    endGroup();
    grouping_ = true;
}

void WorkbookJournal::endGroup() {
    grouping_ = false;
    if (!group_.empty()) record(std::exchange(group_, {}));
}

void WorkbookJournal::dropGroup() {
    grouping_ = false;
    group_.clear();
}

// One flush for all that a command of the program changes: it is queued, so it comes when the command is
// done. Painting has a lower priority and comes behind it.
void WorkbookJournal::record(std::vector<JournalChange> changes) {
    const auto before = journal_.trouble();
    journal_.record(std::move(changes));
    if (journal_.trouble() != before) Q_EMIT troubleChanged();
    if (!std::exchange(flushDue_, true))
        QMetaObject::invokeMethod(this, &WorkbookJournal::flush, Qt::QueuedConnection);
}

void WorkbookJournal::flush() {
    flushDue_ = false;
    const auto before = journal_.trouble();
    journal_.flush();
    if (journal_.trouble() != before) Q_EMIT troubleChanged();
}

} // namespace zvonika
