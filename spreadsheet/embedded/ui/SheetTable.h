#pragma once

#include "spreadsheet/embedded/Document.h"

#include <QTableView>

#include <optional>

namespace zvonika {

class SheetHeader;

/// The cells of a sheet. Typing starts editing; Enter commits and goes down, Tab right (with Shift the other
/// way), Esc cancels, F2 edits what is there. What is selected follows `follow`, and a user's own selection
/// is told.
class SheetTable : public QTableView {
    Q_OBJECT

public:
    explicit SheetTable(QWidget* parent = nullptr);

    /// Shows a selection and scrolls its active cell into sight. While a cell is being edited this waits for
    /// the end of the editing.
    void follow(const Selection& selection);
    bool isTyping() const { return state() == EditingState; }
    /// Ends the editing of a cell, keeping what was typed; the active cell stays.
    void commitPending();
    /// The user goes on to a cell, from outside of the table.
    void step(int rows, int columns);
    void page(bool down); ///< as many rows as the window shows; ends the editing of a cell first
    /// The cell with the frame; with several cells selected it is the one in which typing starts.
    QModelIndex activeCell() const { return active_; }
    void reset() override;

Q_SIGNALS:
    void userSelected(const zvonika::Selection& selection);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    Selection shownSelection() const;
    void show(const Selection& selection);
    void setActive(CellPosition cell);
    void updateRow(int row);

    SheetHeader* columns_;
    SheetHeader* rows_;
    QPersistentModelIndex active_;
    std::optional<Selection> waiting_;
    bool following_ = false;
};

} // namespace zvonika
