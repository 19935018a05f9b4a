#include "spreadsheet/embedded/ui/SheetFooter.h"

#include "spreadsheet/embedded/ui/SheetTabs.h"

#include <QAbstractScrollArea>
#include <QEvent>
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

const QString between = QStringLiteral("  ·  ");

} // namespace

/// A line that shows as many of its sentences as there is room for, each whole or not at all.
class WholeSentences : public QLabel {
public:
    explicit WholeSentences(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    void show(const QStringList& sentences) {
        sentences_ = sentences;
        const QString all = sentences.join(between);
        setToolTip(all);
        setAccessibleDescription(all);
        fit();
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        fit();
    }
    void changeEvent(QEvent* event) override {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange) fit();
    }

private:
    void fit() {
        QString line;
        for (const QString& sentence : sentences_) {
            const QString longer = line.isEmpty() ? sentence : line + between + sentence;
            if (fontMetrics().horizontalAdvance(longer) <= contentsRect().width()) line = longer;
        }
        setText(line);
    }

    QStringList sentences_;
};

SheetFooter::SheetFooter(QAbstractScrollArea* table, QWidget* parent)
    : QWidget(parent), tabs_(new SheetTabs(this)), status_(new WholeSentences(this)) {
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

void SheetFooter::setStatus(const QStringList& sentences) {
    status_->show(sentences);
}

} // namespace zvonika
