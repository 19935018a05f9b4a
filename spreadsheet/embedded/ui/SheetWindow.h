#pragma once

#include "spreadsheet/SheetColumns.h"
#include "spreadsheet/embedded/SheetView.h"

#include <QMainWindow>

#include <functional>

class QStackedWidget;

namespace zvonika {

class ColumnWidths;
class EditLine;
class SheetFooter;
class SheetMenu;
class SheetModel;
class SheetTable;

/// The window of the built-in spreadsheet: menus and the edited cell in one line, the cells, and below them
/// tabs and status in another. Without a document it is an empty grey page. Closing it closes the document.
class SheetWindow : public QMainWindow, public SheetView {
    Q_OBJECT

public:
    /// `commands` must outlive the window. `columns`: what the header, tool tips and status tell of them.
    SheetWindow(SheetCommands& commands, const SheetColumns& columns);
    ~SheetWindow() override;

    void setVisible(bool visible) override;
    void raise() override;
    void setDocument(Document* document) override;
    bool isTyping() const override;
    void commitPending() override;

    /// PageDown (`down`) and PageUp are offered here first; false, or nobody: the sheet turns its page. With
    /// Alt it always does.
    std::function<bool(bool down)> takePageKey;

Q_SIGNALS:
    void f6Pressed(); ///< the user wants to go to the program's window

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeTop();
    QWidget* makePages();
    void takeFocus();
    void wireUser();
    void wirePageKeys();
    void wirePageKey(bool down, const QKeySequence& offered, const QKeySequence& own);
    void wireDocument();
    void showTitle();
    void showSheets();
    void showSelection();
    void showSoon();
    void showDue();
    bool renameSheet(int sheet, const QString& name);
    int sheetOfTab(int tab) const; ///< hidden sheets have none; `tab` counts from 0

    SheetCommands& commands_;
    Document* document_ = nullptr;
    int shownSheet_ = 0;
    bool committing_ = false;
    bool showDue_ = false;   ///< what the document says is to be shown
    bool followDue_ = false; ///< its selection too
    SheetModel* model_;
    SheetTable* table_;
    SheetMenu* menu_;
    EditLine* line_;
    SheetFooter* footer_;
    ColumnWidths* widths_;
    QStackedWidget* pages_ = nullptr;
};

} // namespace zvonika
