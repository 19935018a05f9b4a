#pragma once

#include "spreadsheet/embedded/History.h"
#include "spreadsheet/embedded/SheetCells.h"
#include "spreadsheet/journal/JournalEntry.h"

#include <QObject>

#include <exception>
#include <functional>

namespace zvonika {

class SheetCursor;

/// Changes a workbook, by the program and by the user, who can take his own steps back until the program
/// writes. Sheets, rows and columns count from 1. Refusals are AutomationError 1004 with a sentence for the
/// user.
class Editing : public QObject {
    Q_OBJECT

public:
    enum class By { User, Program };

    /// Hears of every change when it is made, before the signals.
    using Changed = std::function<void(std::vector<JournalChange> changes)>;
    Editing(SheetCells& cells, SheetCursor& cursor, Changed changed);

    // --- what the program writes: not to be taken back here, nor what the user did before ---
    // A part of an array formula is refused (1004), as a rule before anything is written. Where other
    // formulas are replaced by the same call, these may be done by then: signals tell what has changed.
    /// Writes the block with its first cell at `first`; 1004 where it would cross the edge of the sheet.
    void write(int sheet, CellPosition first, const CellBlock& block);
    void fill(int sheet, const CellRange& range, const CellValue& value); ///< empties with an empty value
    /// As `write`, but a cell whose formula in the file shows its value gets the formula again.
    void putBack(int sheet, CellPosition first, const CellBlock& block);

    // --- what the user does: one step each, to be taken back, also what was done before a refusal ---
    /// False when nothing changed.
    bool edit(int sheet, CellPosition first, const CellBlock& block, const QString& label);
    bool editFill(int sheet, const CellRange& range, const CellValue& value, const QString& label);
    /// Rows from `row` on move down (up). 1004 when a formula or, moving down, the last row is in the way.
    /// False when there is nothing to move.
    bool insertRow(int sheet, int row, By by = By::User);
    bool deleteRow(int sheet, int row, By by = By::User);
    /// Takes back (does again) the last step and selects what changed; false when there is none.
    bool undo();
    bool redo();
    QString undoLabel() const { return history_.backLabel(); } ///< "" when there is nothing to take back
    QString redoLabel() const { return history_.againLabel(); }
    /// Nothing of what was done so far is to be taken back here.
    void forgetSteps();
    /// What the user has done, oldest first; somebody else takes it back from now on.
    std::vector<UndoStep> takeSteps() { return history_.take(); }

    // --- by either of them; not to be taken back ---
    /// 1004 when the name is empty, too long, taken, or has a character that may not stand in it.
    void renameSheet(int sheet, const QString& name);
    void setColumnWidth(int sheet, int column, double characters);

Q_SIGNALS:
    void cellsChanged(int sheet, const zvonika::CellRange& range);
    void columnWidthChanged(int sheet, int column);
    void sheetRenamed();
    void historyChanged(); ///< undoLabel or redoLabel

private:
    std::exception_ptr putAll(int sheet, std::vector<CellChange>& changes);
    std::exception_ptr putAllBack(int sheet, std::vector<CellChange>& changes);
    bool commitCells(UndoStep step, By by);
    bool commitRow(UndoStep step, By by);
    void keep(UndoStep step, By by);
    void putBack(int sheet, const CellChange& change);
    void exchange(const UndoStep& step, bool back);
    void exchangeCells(const UndoStep& step, bool back);
    void exchangeRow(const UndoStep& step, bool back);
    void showStep(const UndoStep& step);
    void refuseFormulas(int sheet, int fromRow) const;

    SheetCells& cells_;
    SheetCursor& cursor_;
    Changed changed_;
    History history_;
};

} // namespace zvonika
