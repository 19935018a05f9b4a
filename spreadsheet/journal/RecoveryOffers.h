#pragma once

#include "spreadsheet/journal/JournalFolder.h"

namespace zvonika {

class Dialogs;

/// The conversation about what a crash has left of a workbook, the same in every spreadsheet.
class RecoveryOffers {
public:
    /// `title`: of the boxes.
    RecoveryOffers(Dialogs& dialogs, QString title, JournalFolder journals);

    /// As `JournalFolder::pending`; tells of journals that cannot be used.
    std::vector<PendingJournal> pending(const QString& song);
    /// Asks whether to make the changes; those that are turned down are put aside. `workbook`: what it is
    /// called; `hash`: contents hash of its file, "" without one.
    bool wanted(PendingJournal& pending, const QString& workbook, const QByteArray& hash);
    /// Tells that so many changes were not made, if any.
    void tellRefused(const QString& workbook, int refused);

private:
    Dialogs& dialogs_;
    QString title_;
    JournalFolder journals_;
};

} // namespace zvonika
