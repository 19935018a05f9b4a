#include "board/ui/Zabrana.h"

#include <QPainter>
#include <QPainterPath>

namespace zvonika {

Zabrana::Zabrana(int rada, QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("Překrytá řada %1").arg(rada));
}

void Zabrana::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal sirka = width();
    const QRectF pruh = QRectF(rect()).adjusted(1, 1, -1, -1);
    QPainterPath obrys;
    obrys.addRoundedRect(pruh, sirka * 0.2, sirka * 0.2);
    painter.setClipPath(obrys);
    painter.fillPath(obrys, QColor(236, 230, 220, 48));
    painter.setPen(QPen(QColor(150, 24, 18, 165), sirka * 0.07));
    for (qreal y = -sirka; y < height(); y += sirka * 0.5)
        painter.drawLine(QPointF(0, y + sirka), QPointF(sirka, y));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(120, 20, 16, 210), 1.6));
    painter.drawPath(obrys);
}

} // namespace zvonika
