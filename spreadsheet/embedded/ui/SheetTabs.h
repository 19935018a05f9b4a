#pragma once

#include <QTabBar>

#include <functional>

class QLineEdit;

namespace zvonika {

/// The sheets of a workbook. A double click edits a sheet's name in its place.
class SheetTabs : public QTabBar {
    Q_OBJECT

public:
    explicit SheetTabs(QWidget* parent = nullptr);

    /// Shows these sheets; fires no signal. `current` counts from 0.
    void show(const QStringList& names, int current);
    /// Asked before a name is taken; false leaves the line open for another try.
    void setRename(std::function<bool(int tab, const QString& name)> rename) { rename_ = std::move(rename); }
    void editName(int tab);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void commitName();
    void closeLine();

    std::function<bool(int, const QString&)> rename_;
    QLineEdit* line_ = nullptr;
    int edited_ = -1;
};

} // namespace zvonika
