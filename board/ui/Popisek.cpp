#include "board/ui/Popisek.h"

#include <QPainter>

#include <algorithm>

namespace zvonika {

Popisek::Popisek(const QColor& barva, Qt::Alignment zarovnani, bool tucne, QWidget* parent)
    : QLabel(parent), barva_(barva), tucne_(tucne) {
    setAlignment(zarovnani | Qt::AlignVCenter);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Popisek::paintEvent(QPaintEvent*) {
    napis_.nastav(text());
    if (napis_.prazdny()) return;
    QPainter painter(this);
    QFont pismo = font();
    pismo.setBold(tucne_);
    QRectF misto = rect();
    // Not taller than the window's own letters: a roomy label does not shout.
    const qreal nejvyse = QFontInfo(font()).pixelSize() * 1.15;
    if (misto.height() > nejvyse)
        misto.adjust(0, (misto.height() - nejvyse) / 2, 0, -(misto.height() - nejvyse) / 2);
    napis_.kresli(painter, misto, pismo, barva_, alignment() & Qt::AlignHorizontal_Mask);
}

} // namespace zvonika
