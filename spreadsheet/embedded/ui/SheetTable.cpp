#include "spreadsheet/embedded/ui/SheetTable.h"

#include "spreadsheet/embedded/ui/CellDelegate.h"
#include "spreadsheet/embedded/ui/SheetColours.h"
#include "spreadsheet/embedded/ui/SheetHeader.h"
#include "spreadsheet/embedded/ui/SheetModel.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

constexpr int lineHeight = 21; // px; five rows and the rest of the window fit into 190 px

QPalette sheetPalette(QPalette palette) {
    palette.setColor(QPalette::Base, sheet::paper);
    palette.setColor(QPalette::Text, sheet::ink);
    palette.setColor(QPalette::Window, sheet::header);
    return palette;
}

bool startsEditing(const QKeyEvent& event) {
    return event.key() == Qt::Key_F2 || (!event.text().isEmpty() && event.text().at(0).isPrint());
}

CellRange rangeOf(const QItemSelectionRange& range) {
    return {{range.top() + 1, range.left() + 1}, {range.bottom() + 1, range.right() + 1}};
}

} // namespace

SheetTable::SheetTable(QWidget* parent)
    : QTableView(parent), columns_(new SheetHeader(Qt::Horizontal, this)),
      rows_(new SheetHeader(Qt::Vertical, this)) {
    setObjectName(QStringLiteral("tabulka"));
    setAccessibleName(QStringLiteral("Buňky písně"));
    setHorizontalHeader(columns_);
    setVerticalHeader(rows_);
    rows_->setSectionResizeMode(QHeaderView::Fixed);
    rows_->setDefaultSectionSize(std::max(lineHeight, fontMetrics().height() + 2));
    setItemDelegate(new CellDelegate(this));
    setPalette(sheetPalette(palette()));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false); // drawn with the cells
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrap(false);
}

void SheetTable::follow(const Selection& selection) {
    if (state() == EditingState)
        waiting_ = selection;
    else
        show(selection);
}

void SheetTable::commitPending() {
    QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

// What was to be shown after the editing belonged to another document.
void SheetTable::reset() {
    QTableView::reset();
    waiting_.reset();
}

void SheetTable::show(const Selection& selection) {
    const QScopedValueRollback guard(following_, true);
    const auto* cells = static_cast<const SheetModel*>(model());
    if (shownSelection().range != selection.range) {
        const QItemSelection block(cells->indexOf(selection.range.first),
                                   cells->indexOf(selection.range.last));
        selectionModel()->setCurrentIndex(cells->indexOf(selection.active), QItemSelectionModel::NoUpdate);
        selectionModel()->select(block, QItemSelectionModel::ClearAndSelect);
    }
    setActive(selection.active);
}

void SheetTable::setActive(CellPosition cell) {
    const QModelIndex index = static_cast<const SheetModel*>(model())->indexOf(cell);
    if (index == active_) return;
    updateRow(active_.row());
    updateRow(index.row());
    active_ = index;
    columns_->setCurrent(index.column());
    rows_->setCurrent(index.row());
    scrollTo(index);
}

// The ground of a whole row goes with the active cell.
void SheetTable::updateRow(int row) {
    if (row >= 0) viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

Selection SheetTable::shownSelection() const {
    const QItemSelection ranges = selectionModel()->selection();
    if (ranges.isEmpty()) {
        const CellPosition current = SheetModel::cellOf(currentIndex());
        return {single(current), current};
    }
    CellRange block = rangeOf(ranges.first());
    for (const auto& range : ranges) {
        const CellRange part = rangeOf(range);
        block = {{std::min(block.first.row, part.first.row), std::min(block.first.column, part.first.column)},
                 {std::max(block.last.row, part.last.row), std::max(block.last.column, part.last.column)}};
    }
    // A selection that is being extended keeps its active cell, wherever the view's own cursor has gone.
    const CellPosition active = SheetModel::cellOf(active_);
    return {block, active_.isValid() && block.contains(active) ? active : block.first};
}

void SheetTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    const bool byUser = !following_ && selectionModel() && selectionModel()->hasSelection();
    if (byUser) Q_EMIT userSelected(shownSelection());
}

void SheetTable::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState) {
        step(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1, 0);
        return;
    }
    if (startsEditing(*event) && active_.isValid() && active_ != currentIndex())
        selectionModel()->setCurrentIndex(active_, QItemSelectionModel::NoUpdate);
    QTableView::keyPressEvent(event);
}

// The view would open the next cell's editor; in a sheet the active cell moves on and waits.
void SheetTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    using Delegate = QAbstractItemDelegate;
    const bool moves = hint == Delegate::SubmitModelCache || hint == Delegate::EditNextItem ||
                       hint == Delegate::EditPreviousItem;
    QTableView::closeEditor(editor, moves ? Delegate::NoHint : hint);
    if (waiting_) {
        show(*std::exchange(waiting_, std::nullopt));
        return;
    }
    if (hint == Delegate::SubmitModelCache) step(1, 0);
    if (hint == Delegate::EditNextItem) step(0, 1);
    if (hint == Delegate::EditPreviousItem) step(0, -1);
}

void SheetTable::page(bool down) {
    commitPending();
    if (!active_.isValid()) return;
    selectionModel()->setCurrentIndex(active_, QItemSelectionModel::NoUpdate);
    selectionModel()->setCurrentIndex(moveCursor(down ? MovePageDown : MovePageUp, Qt::NoModifier),
                                      QItemSelectionModel::ClearAndSelect);
}

void SheetTable::step(int rows, int columns) {
    if (!active_.isValid()) return;
    const int row = std::clamp(active_.row() + rows, 0, model()->rowCount() - 1);
    const int column = std::clamp(active_.column() + columns, 0, model()->columnCount() - 1);
    selectionModel()->setCurrentIndex(model()->index(row, column), QItemSelectionModel::ClearAndSelect);
}

} // namespace zvonika
