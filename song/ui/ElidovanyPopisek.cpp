#include "song/ui/ElidovanyPopisek.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zvonika {

ElidovanyPopisek::ElidovanyPopisek(const QString& jmeno, QWidget* parent) : QLabel(parent) {
    setObjectName(jmeno);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
}

void ElidovanyPopisek::nastavText(const QString& novy) {
    if (novy == text()) return;
    setText(novy);
    prizpusob();
}

void ElidovanyPopisek::nastavBarvu(const QColor& barva) {
    if (barva == barva_) return;
    barva_ = barva;
    update();
}

void ElidovanyPopisek::nastavTucne(bool tucne) {
    if (tucne == pismo_.bold()) return;
    pismo_.setBold(tucne);
    prizpusob();
}

void ElidovanyPopisek::nastavVelikost(double nejvice, double nejmene) {
    nejvice_ = nejvice;
    nejmene_ = nejmene;
    prizpusob();
}

void ElidovanyPopisek::nastavDvaRadky() {
    dvaRadky_ = true;
    prizpusob();
}

void ElidovanyPopisek::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    prizpusob();
}

void ElidovanyPopisek::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) prizpusob();
}

void ElidovanyPopisek::prizpusob() {
    const bool tucne = pismo_.bold();
    const int zaklad = fontInfo().pixelSize();
    const int nejmene = std::max(7, static_cast<int>(std::lround(zaklad * nejmene_)));
    int velikost = std::max(nejmene, static_cast<int>(std::lround(zaklad * nejvice_)));
    pismo_ = font();
    pismo_.setBold(tucne);
    while (!vejdeSe(velikost) && velikost > nejmene)
        --velikost;
    zkraceny_ = vejdeSe(velikost) ? text() : QFontMetrics(pismo_).elidedText(text(), Qt::ElideRight, width());
    setToolTip(zkraceny_ == text() ? QString() : text());
    update();
}

bool ElidovanyPopisek::vejdeSe(int velikost) {
    pismo_.setPixelSize(velikost);
    const QFontMetrics mira(pismo_);
    if (mira.height() > height() + 2) return false;
    if (mira.horizontalAdvance(text()) <= width()) return true;
    return dvaRadky_ &&
           rect().size().expandedTo(mira.boundingRect(rect(), Qt::TextWordWrap, text()).size()) == size();
}

void ElidovanyPopisek::paintEvent(QPaintEvent*) {
    if (zkraceny_.isEmpty()) return;
    QPainter painter(this);
    painter.setFont(pismo_);
    painter.setPen(barva_.isValid() ? barva_ : palette().color(QPalette::WindowText));
    painter.drawText(rect(),
                     static_cast<int>(alignment()) | (dvaRadky_ ? Qt::TextWordWrap : Qt::TextSingleLine),
                     zkraceny_);
}

} // namespace zvonika
