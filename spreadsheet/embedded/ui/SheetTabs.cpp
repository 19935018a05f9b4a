#include "spreadsheet/embedded/ui/SheetTabs.h"

#include "platform/ShownText.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace zvonika {

namespace {

constexpr int longestName = 31; // characters a sheet's name may have
constexpr int lineWidth = 140;  // px to edit a name in, at least

} // namespace

SheetTabs::SheetTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("listy"));
    setAccessibleName(QStringLiteral("Listy písně"));
    setShape(QTabBar::RoundedSouth);
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    setToolTip(QStringLiteral("Poklepáním list přejmenujete."));
}

void SheetTabs::show(const QStringList& names, int current) {
    const QSignalBlocker quiet(this);
    while (count() > names.size())
        removeTab(count() - 1);
    for (int i = 0; i < names.size(); ++i) {
        // An ampersand in a name is no shortcut.
        const QString text = shownName(names.at(i)).replace(QLatin1Char('&'), QStringLiteral("&&"));
        if (i >= count())
            addTab(text);
        else if (tabText(i) != text)
            setTabText(i, text);
        setTabData(i, names.at(i));
    }
    setCurrentIndex(current);
}

void SheetTabs::editName(int tab) {
    if (tab < 0 || !rename_) return;
    closeLine();
    edited_ = tab;
    line_ = new QLineEdit(tabData(tab).toString(), this);
    line_->setObjectName(QStringLiteral("nazevListu"));
    line_->setAccessibleName(QStringLiteral("Název listu"));
    line_->setMaxLength(longestName);
    QRect place = tabRect(tab);
    place.setWidth(std::max(place.width(), lineWidth));
    setMinimumWidth(std::max(minimumWidth(), place.right()));
    line_->setGeometry(place);
    line_->selectAll();
    line_->installEventFilter(this);
    connect(line_, &QLineEdit::returnPressed, this, &SheetTabs::commitName);
    line_->QWidget::show();
    line_->setFocus();
}

void SheetTabs::mouseDoubleClickEvent(QMouseEvent* event) {
    editName(tabAt(event->position().toPoint()));
}

bool SheetTabs::eventFilter(QObject* watched, QEvent* event) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (watched == line_ && (escape || event->type() == QEvent::FocusOut)) {
        closeLine();
        return escape;
    }
    return QTabBar::eventFilter(watched, event);
}

void SheetTabs::commitName() {
    if (rename_(edited_, line_->text())) closeLine();
}

void SheetTabs::closeLine() {
    if (!line_) return;
    // It may be the sender of the event that closes it.
    line_->removeEventFilter(this);
    line_->hide();
    line_->deleteLater();
    line_ = nullptr;
    setMinimumWidth(0);
}

} // namespace zvonika
