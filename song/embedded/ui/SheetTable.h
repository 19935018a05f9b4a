#pragma once

#include <QTableView>

namespace zvonika {

/// The cells of a sheet. Typing starts editing; Enter commits and goes down, Tab right (with Shift the other way),
/// Esc cancels, F2 edits what is there. The view's current cell is the active cell.
class SheetTable : public QTableView {
    Q_OBJECT

public:
    explicit SheetTable(QWidget* parent = nullptr);

    /// Moves the active cell, alone selected, and scrolls it into sight.
    void goTo(int row, int column);
    /// The selected cells as one rectangle: the active cell's at least. Rows and columns count from 0.
    QRect selectedBlock() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void step(int rows, int columns);
};

} // namespace zvonika
