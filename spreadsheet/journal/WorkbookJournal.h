#pragma once

#include "spreadsheet/journal/Journal.h"

#include <QObject>

namespace zvonika {

/// What a crash would leave of one open workbook. A process that dies loses no change; a power cut, none that
/// was shown: they are flushed to the disk before the event loop goes on, and with it the painting. Leaves
/// the unsaved changes behind when it is destroyed unless they were given up.
class WorkbookJournal : public QObject {
    Q_OBJECT

public:
    WorkbookJournal(JournalFolder folder, JournalBase base) : journal_(std::move(folder), std::move(base)) {}
    ~WorkbookJournal() override;

    void note(std::vector<JournalChange> changes);
    /// What is noted from here to `endGroup` comes back as a whole or not at all. One at a time; a save ends
    /// it first.
    void beginGroup();
    void endGroup();
    void dropGroup(); ///< ... of which nothing comes back
    /// The workbook has made the changes of this journal, which goes on as its own.
    void takeOver(PendingJournal pending);
    bool hasRecovered() const { return recovered_; } ///< since the last save
    /// The user does not want the unsaved changes any more; holds until the next change.
    void giveUp() { givenUp_ = true; }
    /// Why changes are not in the journal at the moment; "" as a rule.
    QString trouble() const;

    /// Everything so far is about to be put into a file of these contents ...
    void saving(const QString& nativePath, const QByteArray& hash);
    /// ... and has been: the workbook is based on `base` from now on.
    void saved(const JournalBase& base);
    /// Journals of a former song of this name, which is no more.
    void setAsideOf(const QString& nativePath) const { journal_.folder().setAsideAll(nativePath); }

Q_SIGNALS:
    void troubleChanged();

private:
    void record(std::vector<JournalChange> changes);
    void flush();

    Journal journal_;
    bool grouping_ = false;
    std::vector<JournalChange> group_; ///< not in the journal yet
    bool flushDue_ = false;
    bool recovered_ = false;
    bool givenUp_ = false;
};

} // namespace zvonika
