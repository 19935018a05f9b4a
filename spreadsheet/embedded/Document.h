#pragma once

#include "spreadsheet/embedded/DocumentFile.h"
#include "spreadsheet/embedded/Editing.h"
#include "spreadsheet/embedded/SheetCells.h"
#include "spreadsheet/embedded/SheetCursor.h"
#include "spreadsheet/embedded/WorkbookFile.h"
#include "spreadsheet/journal/WorkbookJournal.h"

#include <QObject>

#include <memory>

namespace zvonika {

/// One open workbook of the built-in spreadsheet: its parts, and what takes several of them. Refusals are
/// AutomationError 1004 with a sentence for the user.
///
/// Signals come after every change, whoever made it: a view repaints by them and nothing more.
class Document : public QObject {
    Q_OBJECT

public:
    /// A new workbook, never saved, with one sheet "List1". `name`: what it is called until then ("Sešit1").
    /// `journals`: where its changes are recorded.
    explicit Document(const QString& name, JournalFolder journals = {});
    /// Opens a file and locks it for others. 1004 when it cannot be read or is open elsewhere.
    static std::unique_ptr<Document> open(const QString& nativePath, JournalFolder journals = {});
    /// `read` is `readWorkbook`, whichever way it is carried out.
    static std::unique_ptr<Document> open(const QString& nativePath, JournalFolder journals, FileLock lock,
                                          const WorkbookReader& read = readWorkbook);

    const SheetCells& cells() const { return cells_; }
    Editing& editing() { return editing_; }
    const Editing& editing() const { return editing_; }
    SheetCursor& cursor() { return cursor_; }
    const SheetCursor& cursor() const { return cursor_; }
    const DocumentFile& file() const { return file_; }
    void unlockFile() { file_.unlock(); }
    void setFileWork(DocumentFile::Work work) { file_.setWork(std::move(work)); }
    WorkbookJournal& journal() { return journal_; }
    const WorkbookJournal& journal() const { return journal_; }

    /// Writes the file whole or not at all, with active sheet and cells, whatever is there by now. Must have
    /// a path.
    void save();
    /// As `save`, under a new name that the document has from then on; an existing file is replaced.
    void saveAs(const QString& nativePath);
    /// Makes the changes that a crash has left in a journal, which becomes this document's, and puts the
    /// cursor on the last of them. They count as unsaved and cannot be taken back. How many were refused.
    int recover(PendingJournal pending);

Q_SIGNALS:
    void cellsChanged(int sheet, const zvonika::CellRange& range);
    void columnWidthChanged(int sheet, int column);
    void selectionChanged(); ///< of the active sheet
    void sheetsChanged();    ///< a name, or another sheet is active
    void nameChanged();
    void modifiedChanged();
    void historyChanged(); ///< what can be taken back or done again
    void journalTroubleChanged();

private:
    Document(WorkbookFile file, const QString& path, JournalFolder journals, FileLock lock);

    void passSignalsOn();
    void noteChanges(std::vector<JournalChange> changes);
    DocumentFile::Source source();
    JournalBase journalBase() const { return {file_.path(), file_.name(), file_.hash()}; }
    void showLast(const std::vector<JournalGroup>& groups);

    SheetCells cells_;
    SheetCursor cursor_;
    DocumentFile file_;
    WorkbookJournal journal_;
    Editing editing_;
};

} // namespace zvonika
