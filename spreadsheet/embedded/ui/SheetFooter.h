#pragma once

#include <QWidget>

class QAbstractScrollArea;
class QLabel;

namespace zvonika {

class SheetTabs;

/// One line below the sheet: its tabs, what is shown, and the scroll bar for the columns.
class SheetFooter : public QWidget {
    Q_OBJECT

public:
    explicit SheetFooter(QAbstractScrollArea* table, QWidget* parent = nullptr);

    SheetTabs* tabs() const { return tabs_; }
    void setStatus(const QString& text);

private:
    SheetTabs* tabs_;
    QLabel* status_;
};

} // namespace zvonika
