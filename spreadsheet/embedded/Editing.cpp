#include "spreadsheet/embedded/Editing.h"

#include "platform/RuntimeError.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/CellChanges.h"
#include "spreadsheet/embedded/SheetCursor.h"

#include <algorithm>

namespace zvonika {

Editing::Editing(SheetCells& cells, SheetCursor& cursor, Changed changed)
    : cells_(cells), cursor_(cursor), changed_(std::move(changed)) {}

/// Stops at a refusal, which is returned, and leaves in `changes` what was done. Formulas come first: whether
/// a cell is a part of an array formula shows only when it is written, and no other cell can be refused.
std::exception_ptr Editing::putAll(int sheet, std::vector<CellChange>& changes) {
    std::stable_partition(changes.begin(), changes.end(),
                          [&](const auto& change) { return cells_.isFormula(sheet, change.cell); });
    for (auto next = changes.begin(); next != changes.end(); ++next) {
        try {
            cells_.put(sheet, next->cell, next->after);
        } catch (const RuntimeError&) {
            changes.erase(next, changes.end());
            return std::current_exception();
        }
    }
    return nullptr;
}

void Editing::write(int sheet, CellPosition first, const CellBlock& block) {
    placeFor(first, block);
    commitCells({UndoStep::Kind::Cells, {}, sheet, 0, changesBy(cells_, sheet, first, block)}, By::Program);
}

void Editing::fill(int sheet, const CellRange& range, const CellValue& value) {
    commitCells({UndoStep::Kind::Cells, {}, sheet, 0, changesBy(cells_, sheet, range, value)}, By::Program);
}

bool Editing::edit(int sheet, CellPosition first, const CellBlock& block, const QString& label) {
    placeFor(first, block);
    return commitCells({UndoStep::Kind::Cells, label, sheet, 0, changesBy(cells_, sheet, first, block)},
                       By::User);
}

bool Editing::editFill(int sheet, const CellRange& range, const CellValue& after, const QString& label) {
    return commitCells({UndoStep::Kind::Cells, label, sheet, 0, changesBy(cells_, sheet, range, after)},
                       By::User);
}

bool Editing::commitCells(UndoStep step, By by) {
    const auto refusal = putAll(step.sheet, step.changes);
    const bool any = !step.changes.empty();
    if (any) {
        changed_(written(step.sheet, step.changes));
        Q_EMIT cellsChanged(step.sheet, around(step.changes));
    }
    if (any || !refusal) keep(std::move(step), by);
    if (refusal) std::rethrow_exception(refusal);
    return any;
}

void Editing::forgetSteps() {
    if (history_.clear()) Q_EMIT historyChanged();
}

// Also where the program writes what stands there already: from now on it is a recorded grip.
void Editing::keep(UndoStep step, By by) {
    if (by == By::Program) return forgetSteps();
    if (step.kind == UndoStep::Kind::Cells && step.changes.empty()) return;
    history_.add(std::move(step));
    Q_EMIT historyChanged();
}

/// As `putAll`; leaves in `changes` what has changed, as it would have been taken back.
std::exception_ptr Editing::putAllBack(int sheet, std::vector<CellChange>& changes) {
    std::vector<CellChange> done;
    std::exception_ptr refusal;
    for (const auto& change : changes) {
        try {
            cells_.putBack(sheet, change.cell, change.after);
        } catch (const RuntimeError&) {
            refusal = std::current_exception();
            break;
        }
        const bool isFormula = cells_.isFormula(sheet, change.cell);
        if (!isSame(change.before, change.after) || change.wasFormula != isFormula)
            done.push_back({change.cell, change.after, {}, isFormula});
    }
    changes = std::move(done);
    return refusal;
}

void Editing::putBack(int sheet, CellPosition first, const CellBlock& block) {
    placeFor(first, block);
    std::vector<CellChange> changes = changesBack(cells_, sheet, first, block);
    const auto refusal = putAllBack(sheet, changes);
    if (!changes.empty()) {
        changed_(takenBack(sheet, changes));
        Q_EMIT cellsChanged(sheet, around(changes));
        forgetSteps();
    }
    if (refusal) std::rethrow_exception(refusal);
}

bool Editing::commitRow(UndoStep step, By by) {
    exchange(step, false);
    keep(std::move(step), by);
    return true;
}

bool Editing::insertRow(int sheet, int row, By by) {
    if (row > cells_.usedRows(sheet)) return false;
    refuseFormulas(sheet, row);
    if (cells_.usedRows(sheet) == lastRow)
        refuse(QStringLiteral("Řádek nelze vložit: poslední řádek listu není prázdný."));
    return commitRow({UndoStep::Kind::InsertRow, QStringLiteral("Vložení řádku"), sheet, row, {}}, by);
}

bool Editing::deleteRow(int sheet, int row, By by) {
    if (row > cells_.usedRows(sheet)) return false;
    refuseFormulas(sheet, row);
    UndoStep step{UndoStep::Kind::DeleteRow, QStringLiteral("Odstranění řádku"), sheet, row, {}};
    forCells({{row, 1}, {row, cells_.usedColumns(sheet)}},
             [&](CellPosition cell) { step.changes.push_back(changeTo(cells_, sheet, cell, {})); });
    return commitRow(std::move(step), by);
}

/// A formula speaks of other cells by their place; moved as a value it would be lost.
void Editing::refuseFormulas(int sheet, int fromRow) const {
    forCells({{fromRow, 1}, {cells_.usedRows(sheet), cells_.usedColumns(sheet)}}, [&](CellPosition cell) {
        if (cells_.isFormula(sheet, cell))
            refuse(QStringLiteral("Řádky nelze posunout: v buňce %1 je vzorec.").arg(absoluteAddress(cell)));
    });
}

void Editing::putBack(int sheet, const CellChange& change) {
    if (change.wasFormula)
        cells_.putBack(sheet, change.cell, change.before);
    else
        cells_.put(sheet, change.cell, change.before);
}

void Editing::exchange(const UndoStep& step, bool back) {
    if (step.kind == UndoStep::Kind::Cells)
        exchangeCells(step, back);
    else
        exchangeRow(step, back);
}

void Editing::exchangeCells(const UndoStep& step, bool back) {
    for (const auto& change : step.changes)
        back ? putBack(step.sheet, change) : cells_.put(step.sheet, change.cell, change.after);
    changed_(back ? takenBack(step.sheet, step.changes) : written(step.sheet, step.changes));
    Q_EMIT cellsChanged(step.sheet, around(step.changes));
}

void Editing::exchangeRow(const UndoStep& step, bool back) {
    const bool down = (step.kind == UndoStep::Kind::InsertRow) != back;
    down ? cells_.moveDown(step.sheet, step.row) : cells_.moveUp(step.sheet, step.row);
    std::vector<JournalChange> noted{down ? JournalChange(RowInserted{step.sheet, step.row})
                                          : JournalChange(RowDeleted{step.sheet, step.row})};
    if (back) {
        for (const auto& change : step.changes)
            putBack(step.sheet, change);
        std::ranges::move(takenBack(step.sheet, step.changes), std::back_inserter(noted));
    }
    changed_(std::move(noted));
    Q_EMIT cellsChanged(step.sheet, {{step.row, 1}, {lastRow, lastColumn}});
}

void Editing::showStep(const UndoStep& step) {
    cursor_.activateSheet(step.sheet);
    const CellPosition rowStart{step.row, cursor_.selection().active.column};
    const CellRange range = step.kind == UndoStep::Kind::Cells ? around(step.changes) : single(rowStart);
    cursor_.select(range, range.first);
}

bool Editing::undo() {
    const UndoStep* step = history_.back();
    if (!step) return false;
    exchange(*step, true);
    showStep(*step);
    Q_EMIT historyChanged();
    return true;
}

bool Editing::redo() {
    const UndoStep* step = history_.again();
    if (!step) return false;
    exchange(*step, false);
    showStep(*step);
    Q_EMIT historyChanged();
    return true;
}

void Editing::renameSheet(int sheet, const QString& name) {
    if (name == cells_.sheetName(sheet)) return;
    cells_.renameSheet(sheet, name);
    changed_({SheetRenamed{sheet, name}});
    Q_EMIT sheetRenamed();
}

void Editing::setColumnWidth(int sheet, int column, double characters) {
    cells_.setColumnWidth(sheet, column, characters);
    changed_({ColumnResized{sheet, column, characters}});
    Q_EMIT columnWidthChanged(sheet, column);
}

} // namespace zvonika
