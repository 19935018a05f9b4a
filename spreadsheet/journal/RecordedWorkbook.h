#pragma once

#include "spreadsheet/WorkbookImage.h"
#include "spreadsheet/journal/WorkbookJournal.h"

namespace zvonika {

/// The record of one workbook that is open in another process: what it was last seen to hold, and the journal
/// of what its file does not.
class RecordedWorkbook {
public:
    RecordedWorkbook(WorkbookImage image, JournalFolder journals);

    int id() const { return image_.id; }
    const WorkbookImage& image() const { return image_; }
    WorkbookJournal& journal() { return journal_; }
    const WorkbookJournal& journal() const { return journal_; }

    /// The program has written this block, with its first cell there.
    void wrote(int sheet, CellPosition first, const CellBlock& block);
    /// ... this value into every cell of the range.
    void filled(int sheet, const CellRange& range, const CellValue& value);
    /// ... has put a row in or taken it out; those from it on have moved.
    void movedRows(int sheet, int row, bool inserted);
    void renamed(int sheet, const QString& name);
    /// It stands like this now; what is new is the user's doing. One that is not modified has been saved.
    void seen(WorkbookImage image);
    /// Everything is in the file, whose name it has by now.
    void saved(WorkbookImage image);
    /// The changes of this journal have been made, which have led to this.
    void restored(PendingJournal pending, WorkbookImage image);

private:
    void write(std::vector<JournalChange>& changes, int sheet, CellPosition cell, const CellValue& value);
    void note(std::vector<JournalChange> changes);

    WorkbookImage image_;
    WorkbookJournal journal_;
    bool unsaved_ = false; ///< the journal holds something
};

/// Of a workbook's file as it is now.
JournalBase baseOf(const WorkbookImage& image);

} // namespace zvonika
