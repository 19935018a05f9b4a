#include "spreadsheet/embedded/ui/SheetFooter.h"

#include "spreadsheet/embedded/ui/SheetTabs.h"

#include <QAbstractScrollArea>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

namespace zvonika {

namespace {

// The table's own bar would take a line of cells from a low window.
QScrollBar* columnBar(QAbstractScrollArea* table, QWidget* parent) {
    auto* bar = new QScrollBar(Qt::Horizontal, parent);
    QScrollBar* own = table->horizontalScrollBar();
    bar->setAccessibleName(QStringLiteral("Posun sloupců"));
    bar->setMinimumWidth(60);
    QObject::connect(own, &QScrollBar::rangeChanged, bar, [bar, own](int low, int high) {
        bar->setRange(low, high);
        bar->setPageStep(own->pageStep());
        bar->setSingleStep(own->singleStep());
    });
    QObject::connect(own, &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
    QObject::connect(bar, &QScrollBar::valueChanged, own, &QScrollBar::setValue);
    return bar;
}

} // namespace

SheetFooter::SheetFooter(QAbstractScrollArea* table, QWidget* parent)
    : QWidget(parent), tabs_(new SheetTabs(this)), status_(new QLabel(this)) {
    status_->setObjectName(QStringLiteral("stavTabulky"));
    status_->setAccessibleName(QStringLiteral("Stav tabulky"));
    status_->setTextFormat(Qt::PlainText);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(tabs_);
    row->addWidget(status_, 3);
    row->addWidget(columnBar(table, this), 1);
}

void SheetFooter::setStatus(const QString& text) {
    status_->setText(text);
    status_->setToolTip(text);
}

} // namespace zvonika
