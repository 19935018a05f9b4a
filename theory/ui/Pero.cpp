#include "theory/ui/Pero.h"

#include <QLineF>
#include <QPolygonF>
#include <QVector>

#include <algorithm>

namespace zvonika {

namespace {

constexpr int kroku = 12; ///< sampled points between two given ones

/// One coordinate of a Catmull-Rom curve between `b` and `c`.
double spline(double a, double b, double c, double d, double t) {
    return 0.5 *
           (2 * b + (c - a) * t + (2 * a - 5 * b + 4 * c - d) * t * t + (3 * b - a - 3 * c + d) * t * t * t);
}

BodPera mezi(std::span<const BodPera> body, std::size_t usek, double t) {
    const BodPera& b = body[usek];
    const BodPera& c = body[usek + 1];
    const BodPera& a = usek > 0 ? body[usek - 1] : b;
    const BodPera& d = usek + 2 < body.size() ? body[usek + 2] : c;
    // The breadth must not overshoot: a thin place would become a gap.
    const double nejmene = std::min(b.sirka, c.sirka);
    return {spline(a.x, b.x, c.x, d.x, t), spline(a.y, b.y, c.y, d.y, t),
            std::max(nejmene, spline(a.sirka, b.sirka, c.sirka, d.sirka, t))};
}

QVector<BodPera> navzorkuj(std::span<const BodPera> body) {
    QVector<BodPera> vzorky;
    for (std::size_t usek = 0; usek + 1 < body.size(); ++usek)
        for (int krok = 0; krok < kroku; ++krok)
            vzorky.append(mezi(body, usek, krok / double(kroku)));
    vzorky.append(body.back());
    return vzorky;
}

/// Half the breadth at right angles to the direction of the pen.
QPointF kolmo(const QVector<BodPera>& vzorky, qsizetype i) {
    const BodPera& pred = vzorky[std::max<qsizetype>(i - 1, 0)];
    const BodPera& za = vzorky[std::min(i + 1, vzorky.size() - 1)];
    const QLineF smer(pred.x, pred.y, za.x, za.y);
    const QLineF normala = smer.normalVector().unitVector();
    return QPointF(normala.dx(), normala.dy()) * (vzorky[i].sirka / 2);
}

} // namespace

QPainterPath tahPera(std::span<const BodPera> body) {
    const QVector<BodPera> vzorky = navzorkuj(body);
    QPolygonF leva, prava;
    for (qsizetype i = 0; i < vzorky.size(); ++i) {
        const QPointF stred(vzorky[i].x, vzorky[i].y);
        leva.append(stred + kolmo(vzorky, i));
        prava.prepend(stred - kolmo(vzorky, i));
    }
    QPainterPath obrys;
    obrys.setFillRule(Qt::WindingFill);
    obrys.addPolygon(leva + prava);
    obrys.closeSubpath();
    for (const BodPera& konec : {body.front(), body.back()})
        obrys.addEllipse(QPointF(konec.x, konec.y), konec.sirka / 2, konec.sirka / 2);
    return obrys;
}

} // namespace zvonika
