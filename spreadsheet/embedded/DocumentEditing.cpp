#include "platform/RuntimeError.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/XlsValue.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace zvonika {

namespace {

constexpr qsizetype longestText = 32767; ///< UTF-16 units in one cell

CellPosition position(xls::CellRef cell) {
    return {cell.row + 1, cell.column + 1};
}

void refuseLongText(const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (text && text->size() > longestText)
        refuse(QStringLiteral("Text je příliš dlouhý: do jedné buňky se vejde nejvýš 32 767 znaků."));
}

qsizetype widest(const CellBlock& block) {
    qsizetype columns = 0;
    for (const auto& row : block)
        columns = std::max(columns, row.size());
    return columns;
}

/// The place of a block that fits on the sheet, each of its texts into a cell.
CellRange placeFor(CellPosition first, const CellBlock& block) {
    const auto rows = block.size(), columns = widest(block);
    if (!isOnSheet(first) || first.row + rows - 1 > lastRow || first.column + columns - 1 > lastColumn)
        refuse(QStringLiteral("Údaje se na list od buňky %1 nevejdou.").arg(absoluteAddress(first)));
    for (const auto& row : block)
        std::ranges::for_each(row, refuseLongText);
    return sized(first, static_cast<int>(rows), static_cast<int>(columns));
}

/// Calls `action(cell, value)` for every cell of the block.
template <typename Action>
void forCells(CellPosition first, const CellBlock& block, Action action) {
    for (qsizetype row = 0; row < block.size(); ++row)
        for (qsizetype column = 0; column < block[row].size(); ++column)
            action(CellPosition{first.row + static_cast<int>(row), first.column + static_cast<int>(column)},
                   block[row][column]);
}

template <typename Action>
void forCells(const CellRange& range, Action action) {
    for (int row = range.first.row; row <= range.last.row; ++row)
        for (int column = range.first.column; column <= range.last.column; ++column)
            action(CellPosition{row, column});
}

CellRange around(const std::vector<CellChange>& changes) {
    CellRange range = single(changes.front().cell);
    for (const auto& change : changes) {
        range.first.row = std::min(range.first.row, change.cell.row);
        range.first.column = std::min(range.first.column, change.cell.column);
        range.last.row = std::max(range.last.row, change.cell.row);
        range.last.column = std::max(range.last.column, change.cell.column);
    }
    return range;
}

std::vector<JournalChange> written(int sheet, const std::vector<CellChange>& changes) {
    std::vector<JournalChange> result;
    result.reserve(changes.size());
    for (const auto& change : changes)
        result.emplace_back(CellWritten{sheet, change.cell, change.after});
    return result;
}

/// As `written`, for what is taken back.
std::vector<JournalChange> takenBack(int sheet, const std::vector<CellChange>& changes) {
    std::vector<JournalChange> result;
    result.reserve(changes.size());
    for (const auto& change : changes)
        result.emplace_back(CellWritten{sheet, change.cell, change.before, change.wasFormula});
    return result;
}

} // namespace

void Document::refuseArray(int sheet, CellPosition cell) const {
    const auto array = book_.arrayAround(sheet - 1, {cell.row - 1, cell.column - 1});
    if (!array) refuse(QStringLiteral("Buňku %1 nelze změnit.").arg(absoluteAddress(cell)));
    const CellRange range{position(array->first), position(array->last)};
    refuse(QStringLiteral("Buňku %1 nelze změnit samotnou: patří k maticovému vzorci v oblasti %2.")
               .arg(absoluteAddress(cell), absoluteAddress(range)));
}

void Document::put(int sheet, CellPosition cell, const CellValue& value) {
    try {
        book_.setValue(sheet - 1, {cell.row - 1, cell.column - 1}, toXls(value));
    } catch (const std::invalid_argument&) {
        refuseArray(sheet, cell);
    } catch (const std::bad_alloc&) {
        refuse(QStringLiteral("Buňku %1 nelze změnit: nestačí paměť počítače.").arg(absoluteAddress(cell)));
    }
}

/// What stood in the cell before the change. A formula that the file no longer holds comes back as the value
/// that it showed.
void Document::putBack(int sheet, const CellChange& change) {
    if (change.wasFormula) book_.restoreCell(sheet - 1, {change.cell.row - 1, change.cell.column - 1});
    if (!change.wasFormula || value(sheet, change.cell) != change.before)
        put(sheet, change.cell, change.before);
}

CellChange Document::changeTo(int sheet, CellPosition cell, const CellValue& after) const {
    return {cell, value(sheet, cell), after, isFormula(sheet, cell)};
}

/// A formula differs from every value, also from the one that it shows.
bool Document::differs(int sheet, CellPosition cell, const CellValue& value) const {
    const CellValue now = this->value(sheet, cell);
    const bool same = now == value || (zvonika::isEmpty(now) && zvonika::isEmpty(value));
    return !same || isFormula(sheet, cell);
}

/// What of a range needs to be gone through to empty it; may be nothing (no rows or no columns).
CellRange Document::usedPart(int sheet, const CellRange& range) const {
    return {range.first,
            {std::min(range.last.row, usedRows(sheet)), std::min(range.last.column, usedColumns(sheet))}};
}

std::vector<CellChange> Document::changesBy(int sheet, CellPosition first, const CellBlock& block) const {
    std::vector<CellChange> changes;
    forCells(first, block, [&](CellPosition cell, const CellValue& after) {
        if (differs(sheet, cell, after)) changes.push_back(changeTo(sheet, cell, after));
    });
    return changes;
}

std::vector<CellChange> Document::changesBy(int sheet, const CellRange& range, const CellValue& after) const {
    refuseLongText(after);
    const CellRange part = zvonika::isEmpty(after) ? usedPart(sheet, range) : range;
    handedOver(part);
    std::vector<CellChange> changes;
    forCells(part, [&](CellPosition cell) {
        if (differs(sheet, cell, after)) changes.push_back(changeTo(sheet, cell, after));
    });
    return changes;
}

/// Stops at a refusal, which is returned, and leaves in `changes` what was done. Formulas come first: whether
/// a cell is a part of an array formula shows only when it is written, and no other cell can be refused.
std::exception_ptr Document::putAll(int sheet, std::vector<CellChange>& changes) {
    std::ranges::stable_partition(changes, [&](const auto& change) { return isFormula(sheet, change.cell); });
    for (auto next = changes.begin(); next != changes.end(); ++next) {
        try {
            put(sheet, next->cell, next->after);
        } catch (const RuntimeError&) {
            changes.erase(next, changes.end());
            return std::current_exception();
        }
    }
    return nullptr;
}

void Document::writeAll(int sheet, const CellRange& place, std::vector<CellChange> changes) {
    const auto refusal = putAll(sheet, changes);
    if (!refusal || !changes.empty()) {
        history_.forget(sheet, place);
        Q_EMIT historyChanged();
    }
    if (!changes.empty()) {
        note(written(sheet, changes));
        changed(sheet, around(changes));
    }
    if (refusal) std::rethrow_exception(refusal);
}

void Document::write(int sheet, CellPosition first, const CellBlock& block) {
    const CellRange place = placeFor(first, block);
    writeAll(sheet, place, changesBy(sheet, first, block));
}

void Document::fill(int sheet, const CellRange& range, const CellValue& value) {
    writeAll(sheet, range, changesBy(sheet, range, value));
}

bool Document::edit(int sheet, CellPosition first, const CellBlock& block, const QString& label) {
    placeFor(first, block);
    return commitCells({UndoStep::Kind::Cells, label, sheet, 0, changesBy(sheet, first, block)});
}

bool Document::editFill(int sheet, const CellRange& range, const CellValue& after, const QString& label) {
    return commitCells({UndoStep::Kind::Cells, label, sheet, 0, changesBy(sheet, range, after)});
}

bool Document::commitCells(UndoStep step) {
    const auto refusal = putAll(step.sheet, step.changes);
    const bool any = !step.changes.empty();
    if (any) {
        note(written(step.sheet, step.changes));
        changed(step.sheet, around(step.changes));
        history_.add(std::move(step));
        Q_EMIT historyChanged();
    }
    if (refusal) std::rethrow_exception(refusal);
    return any;
}

bool Document::commit(UndoStep step) {
    exchange(step, false);
    history_.add(std::move(step));
    Q_EMIT historyChanged();
    return true;
}

bool Document::insertRow(int sheet, int row) {
    if (row > usedRows(sheet)) return false;
    refuseFormulas(sheet, row);
    if (usedRows(sheet) == lastRow)
        refuse(QStringLiteral("Řádek nelze vložit: poslední řádek listu není prázdný."));
    return commit({UndoStep::Kind::InsertRow, QStringLiteral("Vložení řádku"), sheet, row, {}});
}

bool Document::deleteRow(int sheet, int row) {
    if (row > usedRows(sheet)) return false;
    refuseFormulas(sheet, row);
    UndoStep step{UndoStep::Kind::DeleteRow, QStringLiteral("Odstranění řádku"), sheet, row, {}};
    forCells({{row, 1}, {row, usedColumns(sheet)}},
             [&](CellPosition cell) { step.changes.push_back(changeTo(sheet, cell, {})); });
    return commit(std::move(step));
}

/// A formula speaks of other cells by their place; moved as a value it would be lost.
void Document::refuseFormulas(int sheet, int fromRow) const {
    forCells({{fromRow, 1}, {usedRows(sheet), usedColumns(sheet)}}, [&](CellPosition cell) {
        if (isFormula(sheet, cell))
            refuse(QStringLiteral("Řádky nelze posunout: v buňce %1 je vzorec.").arg(absoluteAddress(cell)));
    });
}

void Document::shiftDown(int sheet, int row) {
    const int columns = usedColumns(sheet);
    for (int from = usedRows(sheet); from >= row; --from)
        for (int column = 1; column <= columns; ++column)
            put(sheet, {from + 1, column}, value(sheet, {from, column}));
    for (int column = 1; column <= columns; ++column)
        put(sheet, {row, column}, {});
}

void Document::shiftUp(int sheet, int row) {
    const int rows = usedRows(sheet), columns = usedColumns(sheet);
    for (int to = row; to < rows; ++to)
        for (int column = 1; column <= columns; ++column)
            put(sheet, {to, column}, value(sheet, {to + 1, column}));
    for (int column = 1; column <= columns; ++column)
        put(sheet, {rows, column}, {});
}

void Document::exchange(const UndoStep& step, bool back) {
    if (step.kind == UndoStep::Kind::Cells)
        exchangeCells(step, back);
    else
        exchangeRow(step, back);
}

void Document::exchangeCells(const UndoStep& step, bool back) {
    for (const auto& change : step.changes)
        back ? putBack(step.sheet, change) : put(step.sheet, change.cell, change.after);
    note(back ? takenBack(step.sheet, step.changes) : written(step.sheet, step.changes));
    changed(step.sheet, around(step.changes));
}

void Document::exchangeRow(const UndoStep& step, bool back) {
    const bool down = (step.kind == UndoStep::Kind::InsertRow) != back;
    down ? shiftDown(step.sheet, step.row) : shiftUp(step.sheet, step.row);
    std::vector<JournalChange> noted;
    if (back) {
        for (const auto& change : step.changes)
            putBack(step.sheet, change);
        noted = takenBack(step.sheet, step.changes);
    }
    noted.insert(noted.begin(), down ? JournalChange(RowInserted{step.sheet, step.row})
                                     : JournalChange(RowDeleted{step.sheet, step.row}));
    note(std::move(noted));
    changed(step.sheet, {{step.row, 1}, {lastRow, lastColumn}});
}

void Document::showStep(const UndoStep& step) {
    activateSheet(step.sheet);
    const CellPosition rowStart{step.row, selection().active.column};
    const CellRange range = step.kind == UndoStep::Kind::Cells ? around(step.changes) : single(rowStart);
    select(range, range.first);
}

bool Document::undo() {
    const UndoStep* step = history_.back();
    if (!step) return false;
    exchange(*step, true);
    showStep(*step);
    Q_EMIT historyChanged();
    return true;
}

bool Document::redo() {
    const UndoStep* step = history_.again();
    if (!step) return false;
    exchange(*step, false);
    showStep(*step);
    Q_EMIT historyChanged();
    return true;
}

} // namespace zvonika
