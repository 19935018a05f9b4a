#pragma once

#include "spreadsheet/embedded/WorkbookFile.h"
#include "spreadsheet/journal/RecoveryOffers.h"

#include <QString>

#include <memory>
#include <vector>

namespace zvonika {

class Dialogs;
class Document;
class Session;

/// Opens workbooks as the user wishes it, by boxes: also one that is open elsewhere, and with the changes
/// that a crash has left in a journal. Refusals, the user's too, are AutomationError 1004.
class Opening {
public:
    Opening(Session& session, JournalFolder journals);

    /// Does not put the workbook into the session.
    std::unique_ptr<Document> open(const QString& nativePath);
    /// Brings the workbooks that were never saved and that the user wants back into the session.
    void recoverUnsaved();

private:
    WorkbookFile read(const QString& nativePath);
    void offer(Document& document, PendingJournal pending);

    Session& session_;
    JournalFolder journals_;
    RecoveryOffers offers_;
};

} // namespace zvonika
