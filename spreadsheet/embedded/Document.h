#pragma once

#include "platform/files/FileLock.h"
#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"
#include "spreadsheet/embedded/History.h"
#include "spreadsheet/embedded/journal/Journal.h"
#include "spreadsheet/xls/Workbook.h"

#include <QObject>

#include <exception>
#include <memory>
#include <vector>

namespace zvonika {

struct WorkbookFile;

/// What is selected on a sheet: a rectangle, and in it the active cell.
struct Selection {
    CellRange range;
    CellPosition active;
    friend bool operator==(const Selection&, const Selection&) = default;
};

/// One open workbook of the built-in spreadsheet. Sheets, rows and columns count from 1; a sheet or cell that
/// does not exist is a caller's error (std::out_of_range). Refusals are AutomationError 1004 with a sentence
/// for the user.
///
/// Signals come after every change, whoever made it: a view repaints by them and nothing more.
class Document : public QObject {
    Q_OBJECT

public:
    /// A new workbook, never saved, with one sheet "List1". `name`: what it is called until then ("Sešit1").
    /// `journals`: where its changes are recorded. A process that dies loses none of them; a power cut, none
    /// that was shown: they are flushed to the disk before the event loop goes on, and with it the painting.
    explicit Document(const QString& name, JournalFolder journals = {});
    /// Opens a file and locks it for others. 1004 when it cannot be read or is open elsewhere.
    static std::unique_ptr<Document> open(const QString& nativePath, JournalFolder journals = {});
    static std::unique_ptr<Document> open(const QString& nativePath, JournalFolder journals, FileLock lock);
    /// Leaves the journal of unsaved changes behind unless they were given up.
    ~Document() override;

    // --- the file ---
    QString name() const { return name_; } ///< file name without folder
    QString path() const { return path_; } ///< native full name; "" before the first save
    /// Cells, a sheet's name or a column's width differ from the file. Moving the cursor alone does not
    /// count.
    bool isModified() const { return modified_; }
    /// The file is of an older format; saving changes turns it into the present one.
    bool isOldFormat() const { return oldFormat_; }
    /// Another program has changed the file since it was read or written here. A file that is gone has not
    /// been changed.
    bool isChangedOnDisk() const;
    /// Writes the file whole or not at all, with active sheet and cells, whatever is there by now. Must have
    /// a path.
    void save();
    /// As `save`, under a new name that the document has from then on; an existing file is replaced.
    void saveAs(const QString& nativePath);

    // --- what a crash has left ---
    /// Makes the changes of a journal, which becomes this document's, and puts the cursor on the last of
    /// them. They count as unsaved and cannot be taken back. How many were refused.
    int recover(PendingJournal pending);
    /// Contents hash of the file as it was read or last written; "" before the first save.
    const QByteArray& fileHash() const { return fileHash_; }
    bool hasRecovered() const { return recovered_; } ///< since the last save
    /// The user does not want the unsaved changes any more; holds until the next change.
    void giveUpChanges() { givenUp_ = true; }
    /// Why changes are not in the journal at the moment; "" as a rule.
    QString journalTrouble() const;

    // --- sheets ---
    int sheetCount() const;
    QString sheetName(int sheet) const;
    int activeSheet() const { return activeSheet_; }
    void activateSheet(int sheet);
    /// 1004 when the name is empty, too long, taken, or has a character that may not stand in it.
    void renameSheet(int sheet, const QString& name);

    // --- what is selected; each sheet remembers its own ---
    Selection selection() const { return selection(activeSheet_); }
    Selection selection(int sheet) const;
    /// Selects on the active sheet; `active` must lie in `range`.
    void select(const CellRange& range, CellPosition active);
    void select(CellPosition cell) { select(single(cell), cell); }

    // --- cells ---
    CellValue value(int sheet, CellPosition cell) const;
    bool isFormula(int sheet, CellPosition cell) const;
    CellBlock block(int sheet, const CellRange& range) const;
    QString displayText(int sheet, CellPosition cell) const; ///< as it stands in the sheet: "3,5", "PRAVDA"
    QString editText(int sheet, CellPosition cell) const;    ///< as a cell editor shows it: "3,5", "'15"
    int usedRows(int sheet) const;                   ///< last row that holds a value; 0 in an empty sheet
    int usedColumns(int sheet) const;                ///< last column that holds a value
    double columnWidth(int sheet, int column) const; ///< in characters of the default font
    void setColumnWidth(int sheet, int column, double characters);

    // --- what the program writes: not to be taken back, and out of reach for what the user takes back ---
    // A part of an array formula is refused (1004), as a rule before anything is written. Where other
    // formulas are replaced by the same call, these may be done by then: signals tell what has changed.
    /// Writes the block with its first cell at `first`; 1004 where it would cross the edge of the sheet.
    void write(int sheet, CellPosition first, const CellBlock& block);
    void fill(int sheet, const CellRange& range, const CellValue& value); ///< empties with an empty value

    // --- what the user does: one step each, to be taken back, also what was done before a refusal ---
    /// False when nothing changed.
    bool edit(int sheet, CellPosition first, const CellBlock& block, const QString& label);
    bool editFill(int sheet, const CellRange& range, const CellValue& value, const QString& label);
    /// Rows from `row` on move down (up). 1004 when a formula or, moving down, the last row is in the way.
    /// False when there is nothing to move.
    bool insertRow(int sheet, int row);
    bool deleteRow(int sheet, int row);
    /// Takes back (does again) the last step and selects what changed; false when there is none.
    bool undo();
    bool redo();
    QString undoLabel() const { return history_.backLabel(); } ///< "" when there is nothing to take back
    QString redoLabel() const { return history_.againLabel(); }

Q_SIGNALS:
    void cellsChanged(int sheet, const zvonika::CellRange& range);
    void columnWidthChanged(int sheet, int column);
    void selectionChanged(); ///< of the active sheet
    void sheetsChanged();    ///< a name, or another sheet is active
    void nameChanged();
    void modifiedChanged();
    void historyChanged(); ///< undoLabel or redoLabel
    void journalTroubleChanged();

private:
    Document(WorkbookFile file, const QString& path, JournalFolder journals, FileLock lock);

    void store(const QString& nativePath);
    JournalBase journalBase() const { return {path_, name_, fileHash_}; }
    void note(std::vector<JournalChange> changes);
    void flushJournal();
    int replay(const std::vector<JournalGroup>& groups);
    bool replayed(const JournalChange& change);
    void replayChange(const JournalChange& change);
    void putColumnWidth(int sheet, int column, double characters);
    void becomeSaved();
    void showLast(const std::vector<JournalGroup>& groups);
    void requireSheet(int sheet) const;
    void put(int sheet, CellPosition cell, const CellValue& value);
    [[noreturn]] void refuseArray(int sheet, CellPosition cell) const;
    void putBack(int sheet, const CellChange& change);
    CellChange changeTo(int sheet, CellPosition cell, const CellValue& after) const;
    bool differs(int sheet, CellPosition cell, const CellValue& value) const;
    CellRange usedPart(int sheet, const CellRange& range) const;
    std::vector<CellChange> changesBy(int sheet, CellPosition first, const CellBlock& block) const;
    std::vector<CellChange> changesBy(int sheet, const CellRange& range, const CellValue& value) const;
    std::exception_ptr putAll(int sheet, std::vector<CellChange>& changes);
    void writeAll(int sheet, const CellRange& place, std::vector<CellChange> changes);
    bool commitCells(UndoStep step);
    bool commit(UndoStep step);
    void exchange(const UndoStep& step, bool back);
    void exchangeCells(const UndoStep& step, bool back);
    void exchangeRow(const UndoStep& step, bool back);
    void showStep(const UndoStep& step);
    void shiftDown(int sheet, int row);
    void shiftUp(int sheet, int row);
    void refuseFormulas(int sheet, int fromRow) const;
    void changed(int sheet, const CellRange& range);
    void takePath(const QString& nativePath);
    void setModified(bool modified);
    void readCursor();
    void writeCursor();

    xls::Workbook book_;
    QString name_;
    QString path_;
    FileLock lock_;
    std::vector<Selection> selections_; ///< one per sheet
    int activeSheet_ = 1;
    bool modified_ = false;
    QByteArray fileHash_;
    QByteArray writingHash_; ///< of what a save has tried to write; it may be there although the save failed
    bool oldFormat_ = false;
    bool recovered_ = false;
    bool givenUp_ = false;
    Journal journal_;
    bool flushDue_ = false;
    History history_;
};

} // namespace zvonika
