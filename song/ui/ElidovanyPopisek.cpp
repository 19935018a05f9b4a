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
    const auto vejdeSe = [&] {
        pismo_.setPixelSize(velikost);
        const QFontMetrics mira(pismo_);
        return mira.horizontalAdvance(text()) <= width() && mira.height() <= height() + 2;
    };
    while (!vejdeSe() && velikost > nejmene)
        --velikost;
    zkraceny_ = QFontMetrics(pismo_).elidedText(text(), Qt::ElideRight, width());
    setToolTip(zkraceny_ == text() ? QString() : text());
    update();
}

void ElidovanyPopisek::paintEvent(QPaintEvent*) {
    if (zkraceny_.isEmpty()) return;
    QPainter painter(this);
    painter.setFont(pismo_);
    painter.setPen(barva_.isValid() ? barva_ : palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, zkraceny_);
}

} // namespace zvonika
