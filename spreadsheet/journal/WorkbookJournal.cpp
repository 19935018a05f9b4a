#include "spreadsheet/journal/WorkbookJournal.h"

#include "spreadsheet/journal/RecoverySentences.h"

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

void WorkbookJournal::saved(const JournalBase& base) {
    recovered_ = false;
    journal_.startAfresh(base);
    Q_EMIT troubleChanged();
}

QString WorkbookJournal::trouble() const {
    return journal_.trouble() ? journalRefused(journal_.trouble()) : QString();
}

// One flush for all that a command of the program changes: it is queued, so it comes when the command is
// done. Painting has a lower priority and comes behind it.
void WorkbookJournal::note(std::vector<JournalChange> changes) {
    givenUp_ = false;
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
