#include "board/ui/KresbaPrvku.h"

#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {

/// Arrow head with rounded corners; `smer` is -1 for left and 1 for right.
void nakresliSipku(QPainter& painter, QPointF stred, qreal vyska, int smer, const QColor& barva) {
    const qreal p = vyska * 0.42 * smer;
    const QPointF hrot(stred.x() + p, stred.y());
    const QPointF horni(stred.x() - p, stred.y() - vyska / 2);
    const QPointF dolni(stred.x() - p, stred.y() + vyska / 2);
    painter.setPen(QPen(barva, vyska * 0.16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(barva);
    painter.drawPolygon(QPolygonF({hrot, horni, dolni}));
}

void nakresliSipkuStavu(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba,
                        const QColor& barva) {
    const int smer = podoba.vyznam == VyznamPrvku::Tah ? -1 : 1;
    const qreal v = lic.height();
    if (!podoba.popsany)
        return nakresliSipku(painter, lic.center() + QPointF(smer * v * 0.07, 0), v * 0.52, smer, barva);
    const qreal odKraje = podoba.tvar == TvarPrvku::Kolo ? v * 0.14 : v * 0.36;
    const qreal x = smer < 0 ? lic.left() + odKraje : lic.right() - odKraje;
    nakresliSipku(painter, QPointF(x, lic.center().y()), v * (podoba.tvar == TvarPrvku::Kolo ? 0.26 : 0.46),
                  smer, barva);
}

void nakresliTerc(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba, const QColor& barva) {
    const qreal v = lic.height();
    const qreal o = v * (podoba.popsany ? 0.07 : 0.15);
    const QRectF krouzek = lic.adjusted(o, o, -o, -o);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(barva, std::max(1.2, v * (podoba.popsany ? 0.065 : 0.09))));
    painter.drawRoundedRect(krouzek, krouzek.height() / 2, krouzek.height() / 2);
    if (podoba.popsany) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(barva);
    painter.drawEllipse(lic.center(), v * 0.15, v * 0.15);
}

void nakresliCtverec(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba, const QColor& barva) {
    const qreal v = lic.height();
    const qreal strana = v * (podoba.popsany ? 0.66 : 0.5); // the larger one is a plate under the caption
    const QRectF ctverec(lic.center() - QPointF(strana, strana) / 2, QSizeF(strana, strana));
    painter.setPen(QPen(barva, std::max(1.2, v * 0.07), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(barva);
    painter.drawRect(ctverec);
}

} // namespace

void nakresliZnak(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba, const QColor& barva) {
    switch (podoba.vyznam) {
    case VyznamPrvku::Volny:
        break;
    case VyznamPrvku::Oznaceny:
        nakresliTerc(painter, lic, podoba, barva);
        break;
    case VyznamPrvku::Tah:
    case VyznamPrvku::Tlak:
        nakresliSipkuStavu(painter, lic, podoba, barva);
        break;
    case VyznamPrvku::Interval:
        nakresliCtverec(painter, lic, podoba, barva);
        break;
    }
}

} // namespace zvonika
