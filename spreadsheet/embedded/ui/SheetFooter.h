#pragma once

#include <QWidget>

class QAbstractScrollArea;
class QLabel;

namespace zvonika {

class SheetTabs;
class WholeSentences;

/// One line below the sheet: its tabs, what is shown, and the scroll bar for the columns.
class SheetFooter : public QWidget {
    Q_OBJECT

public:
    explicit SheetFooter(QAbstractScrollArea* table, QWidget* parent = nullptr);

    SheetTabs* tabs() const { return tabs_; }
    /// What matters most comes first; what has no room whole is left to the tool tip.
    void setStatus(const QStringList& sentences);

private:
    SheetTabs* tabs_;
    WholeSentences* status_;
};

} // namespace zvonika
