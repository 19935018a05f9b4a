#include "board/ui/KresbaPrvku.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>

namespace zvonika {

namespace {

QPainterPath obly(const QRectF& obdelnik) {
    const qreal polomer = std::min(obdelnik.width(), obdelnik.height()) / 2;
    QPainterPath cesta;
    cesta.addRoundedRect(obdelnik, polomer, polomer);
    return cesta;
}

QRectF zuzeny(const QRectF& obdelnik, qreal o) {
    return obdelnik.adjusted(o, o, -o, -o);
}

/// The body leaves room for its shadow: a little on the sides, more below.
QRectF teloKnofliku(const QRectF& misto, bool kolo) {
    const qreal u = misto.height() / 100;
    if (!kolo) return misto.adjusted(5 * u, 4 * u, -5 * u, -10 * u);
    const qreal prumer = std::min(misto.width(), misto.height()) * 0.92;
    return QRectF(misto.center().x() - prumer / 2, misto.top() + u, prumer, prumer);
}

// Stacked translucent outlines stand in for a blur, which a paint device could only do pixel by pixel.
void nakresliStin(QPainter& painter, const QRectF& telo) {
    const qreal u = telo.height() / 100;
    painter.setBrush(QColor(0, 0, 0, 34));
    for (const qreal sire : {5.0, 3.0, 1.0})
        painter.drawPath(obly(zuzeny(telo, -sire * u * 0.6).translated(0, (4 + sire * 0.4) * u)));
}

QBrush vyplnObruby(const QRectF& telo, const PodobaPrvku& podoba) {
    QLinearGradient prechod(telo.topLeft(), telo.bottomLeft());
    const bool cervena = podoba.obtazeny && podoba.vyznam != VyznamPrvku::Oznaceny;
    if (cervena) {
        prechod.setColorAt(0, QColor(255, 92, 80));
        prechod.setColorAt(1, QColor(206, 20, 20));
    } else if (podoba.tmavy) {
        prechod.setColorAt(0, QColor(150, 146, 142));
        prechod.setColorAt(0.5, QColor(70, 66, 64));
        prechod.setColorAt(1, QColor(18, 16, 15));
    } else {
        prechod.setColorAt(0, QColor(255, 255, 252));
        prechod.setColorAt(0.55, QColor(226, 215, 196));
        prechod.setColorAt(1, QColor(150, 132, 108));
    }
    return prechod;
}

QBrush vyplnLice(const QRectF& lic, const QColor& barva, bool kolo) {
    const QColor svetla = barva.lighter(barva.lightness() < 70 ? 165 : 122);
    if (!kolo) {
        QLinearGradient prechod(lic.topLeft(), lic.bottomLeft());
        prechod.setColorAt(0, svetla);
        prechod.setColorAt(0.45, barva);
        prechod.setColorAt(1, barva.darker(122));
        return prechod;
    }
    const qreal r = lic.width() / 2;
    QRadialGradient prechod(lic.center() + QPointF(0, r * 0.1), r * 1.15,
                            lic.center() - QPointF(r * 0.3, r * 0.42));
    prechod.setColorAt(0, svetla);
    prechod.setColorAt(0.5, barva);
    prechod.setColorAt(1, barva.darker(136));
    return prechod;
}

void nakresliLesk(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba) {
    QRectF lesk(lic.left() + lic.width() * 0.14, lic.top() + lic.height() * 0.04, lic.width() * 0.72,
                lic.height() * 0.4);
    if (podoba.tvar == TvarPrvku::Pilulka) lesk.adjust(-lic.width() * 0.08, 0, lic.width() * 0.08, 0);
    QLinearGradient prechod(lesk.topLeft(), lesk.bottomLeft());
    prechod.setColorAt(0, QColor(255, 255, 255, podoba.tmavy ? 105 : 150));
    prechod.setColorAt(1, QColor(255, 255, 255, 0));
    painter.fillPath(obly(lesk), prechod);
}

void nakresliHmat(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba, const QColor& barva) {
    if (podoba.hmat == HmatovaZnacka::Zadna) return;
    painter.save();
    painter.setClipPath(obly(zuzeny(lic, lic.height() * 0.04)));
    QColor ryha = barva;
    const bool volny = podoba.vyznam == VyznamPrvku::Volny; // elsewhere the caption stands on a strong colour
    ryha.setAlpha(podoba.hmat == HmatovaZnacka::Dulek ? 150 : volny ? 95 : 60);
    const qreal v = lic.height();
    painter.setPen(QPen(ryha, std::max(0.8, v * 0.055)));
    if (podoba.hmat == HmatovaZnacka::Mriz) {
        for (qreal x = lic.left() - v; x < lic.right(); x += v * 0.3)
            painter.drawLine(QPointF(x, lic.bottom()), QPointF(x + v, lic.top()));
    } else {
        painter.setBrush(QColor(0, 0, 0, 34));
        painter.drawRoundedRect(zuzeny(lic, v * 0.14), v * 0.36, v * 0.36);
        painter.setPen(QPen(QColor(255, 255, 255, 150), std::max(0.8, v * 0.04)));
        painter.drawRoundedRect(zuzeny(lic, v * 0.2), v * 0.3, v * 0.3);
    }
    painter.restore();
}

} // namespace

void nakresliKnoflik(QPainter& painter, const QRectF& misto, const PodobaPrvku& podoba) {
    const bool kolo = podoba.tvar == TvarPrvku::Kolo;
    const BarvyPrvku barvy = barvyKnofliku(podoba.vyznam, podoba.tmavy);
    const QRectF telo = teloKnofliku(misto, kolo);
    const qreal obruba = std::max(1.0, telo.height() * (podoba.obtazeny ? 0.09 : 0.06));
    const QRectF lic = zuzeny(telo, obruba);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    nakresliStin(painter, telo);
    painter.fillPath(obly(telo), vyplnObruby(telo, podoba));
    if (lic.height() < 1) return; // a window pushed together leaves no room for a face
    painter.fillPath(obly(lic), vyplnLice(lic, barvy.lic, kolo));
    nakresliHmat(painter, lic, podoba, barvy.znak);
    nakresliLesk(painter, lic, podoba);
    nakresliZnak(painter, lic, podoba, barvy.znak);
}

} // namespace zvonika
