#include "spreadsheet/journal/Journal.h"

#include "spreadsheet/journal/JournalFormat.h"

namespace zvonika {

template <typename Entry>
void Journal::put(const Entry& entry) {
    if (nextNumber_ == 0) unsafe_ = journalformat::signature() + journalformat::encoded(nextNumber_++, base_);
    unsafe_ += journalformat::encoded(nextNumber_++, entry);
}

void Journal::record(std::vector<JournalChange> changes) {
    if (folder_.isOff() || changes.empty()) return;
    put(JournalGroup{QDateTime::currentDateTimeUtc(), std::move(changes)});
    write();
}

void Journal::saving(const QString& path, const QByteArray& hash) {
    if (nextNumber_ == 0) return;
    put(JournalSave{path, hash});
    write();
    flush();
}

void Journal::takeOver(PendingJournal pending) {
    if (nextNumber_ == 0) {
        file_ = std::move(pending.file);
        safeSize_ = pending.contents.validSize;
        nextNumber_ = pending.contents.entries;
        return;
    }
    for (const auto& group : pending.contents.groups)
        put(group);
    write();
    flush();
    if (!trouble_) pending.file.remove();
}

void Journal::startAfresh(JournalBase base) {
    if (file_) file_->remove();
    file_.reset();
    base_ = std::move(base);
    nextNumber_ = 0;
    safeSize_ = 0;
    unsafe_.clear();
    written_ = 0;
    flushFailed_ = false;
    trouble_.clear();
}

void Journal::write() {
    try {
        if (file_)
            file_->appendAt(safeSize_ + written_, unsafe_.mid(written_));
        else
            file_ = folder_.begin(base_.path, unsafe_);
        written_ = unsafe_.size();
        if (!flushFailed_) trouble_.clear();
    } catch (const std::system_error& failure) {
        trouble_ = failure.code();
    }
}

// After a failed flush nobody knows what is on the disk, so everything is written again.
void Journal::flush() {
    if (!file_ || written_ == 0) return;
    try {
        file_->flush();
        safeSize_ += written_;
        unsafe_.remove(0, written_);
        flushFailed_ = false;
        if (unsafe_.isEmpty()) trouble_.clear();
    } catch (const std::system_error& failure) {
        trouble_ = failure.code();
        flushFailed_ = true;
    }
    written_ = 0;
}

} // namespace zvonika
