#pragma once

#include <QObject>

class QHeaderView;

namespace zvonika {

class Document;
class SheetCommands;

/// Keeps the widths of the columns on the screen: those of the file where it sets them, otherwise those that
/// the model of `header` proposes. A width that the user drags goes into the document.
class ColumnWidths : public QObject {
    Q_OBJECT

public:
    ColumnWidths(SheetCommands& commands, QHeaderView* header);

    void setDocument(Document* document);
    /// Another sheet is active.
    void refresh();

private:
    int pixels(int column) const;
    void apply(int column);
    void userResized(int section, int oldSize, int newSize);

    SheetCommands& commands_;
    QHeaderView* header_;
    Document* document_ = nullptr;
    bool applying_ = false;
};

} // namespace zvonika
