#pragma once

#include <QMenuBar>

#include <functional>
#include <vector>

namespace zvonika {

class Document;
class SheetCommands;

/// The menus of the sheet window; every entry is one of the user's commands.
class SheetMenu : public QMenuBar {
    Q_OBJECT

public:
    /// `sheet`: the widget with the cells; gets the menu of cells on a right click.
    SheetMenu(SheetCommands& commands, QWidget* sheet, QWidget* parent = nullptr);

    void setDocument(Document* document);

Q_SIGNALS:
    void aboutToAct(); ///< before every command

private:
    void fillFile(QMenu* menu);
    void fillEdit(QMenu* menu);
    QAction* add(QMenu* menu, const QString& name, const QString& text, const QList<QKeySequence>& keys,
                 std::function<void()> action);
    void showHistory();
    void showWorkbooks();

    SheetCommands& commands_;
    Document* document_ = nullptr;
    QMenu* workbooks_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    std::vector<QAction*> needDocument_;
};

} // namespace zvonika
