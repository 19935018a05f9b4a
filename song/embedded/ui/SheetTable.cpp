#include "song/embedded/ui/SheetTable.h"

#include "song/embedded/ui/CellDelegate.h"
#include "song/embedded/ui/SheetColours.h"
#include "song/embedded/ui/SheetHeader.h"

#include <QKeyEvent>

#include <algorithm>

namespace zvonika {

namespace {

constexpr int rowHeight = 21; // px; five rows and the rest of the window fit into 190 px

QPalette sheetPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, sheet::paper);
    palette.setColor(QPalette::Text, sheet::ink);
    palette.setColor(QPalette::Window, sheet::header);
    return palette;
}

} // namespace

SheetTable::SheetTable(QWidget* parent) : QTableView(parent)
{
    setObjectName(QStringLiteral("tabulka"));
    setAccessibleName(QStringLiteral("Buňky písně"));
    setHorizontalHeader(new SheetHeader(Qt::Horizontal, this));
    setVerticalHeader(new SheetHeader(Qt::Vertical, this));
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(std::max(rowHeight, fontMetrics().height() + 2));
    setItemDelegate(new CellDelegate(this));
    setPalette(sheetPalette(palette()));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false); // drawn with the cells
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
}

void SheetTable::goTo(int row, int column)
{
    const QModelIndex index = model()->index(row, column);
    if (!index.isValid()) return;
    if (index != currentIndex()) setCurrentIndex(index);
    scrollTo(index);
}

QRect SheetTable::selectedBlock() const
{
    const QItemSelection selection = selectionModel() ? selectionModel()->selection() : QItemSelection();
    if (selection.isEmpty()) return {currentIndex().column(), currentIndex().row(), 1, 1};
    QRect block;
    for (const auto& range : selection)
        block |= QRect(range.left(), range.top(), range.width(), range.height());
    return block;
}

void SheetTable::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState)
        step(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1, 0);
    else
        QTableView::keyPressEvent(event);
}

// The view would open the next cell's editor; in a sheet the active cell moves on and waits.
void SheetTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    using Delegate = QAbstractItemDelegate;
    const bool moves = hint == Delegate::SubmitModelCache || hint == Delegate::EditNextItem ||
                       hint == Delegate::EditPreviousItem;
    QTableView::closeEditor(editor, moves ? Delegate::NoHint : hint);
    if (hint == Delegate::SubmitModelCache) step(1, 0);
    if (hint == Delegate::EditNextItem) step(0, 1);
    if (hint == Delegate::EditPreviousItem) step(0, -1);
}

void SheetTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    // The ground of two whole rows has changed, not only two cells.
    if (current.row() != previous.row()) viewport()->update();
}

void SheetTable::step(int rows, int columns)
{
    const QModelIndex current = currentIndex();
    if (!current.isValid()) return;
    const int row = std::clamp(current.row() + rows, 0, model()->rowCount() - 1);
    const int column = std::clamp(current.column() + columns, 0, model()->columnCount() - 1);
    goTo(row, column);
}

} // namespace zvonika
