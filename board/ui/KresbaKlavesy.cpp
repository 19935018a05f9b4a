#include "board/ui/KresbaPrvku.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zvonika {

namespace {

/// Square at the root of the key, rounded at its front edge.
QPainterPath obrys(const QRectF& r, qreal polomer) {
    QPainterPath cesta(r.topLeft());
    cesta.lineTo(r.right() - polomer, r.top());
    cesta.quadTo(r.right(), r.top(), r.right(), r.top() + polomer);
    cesta.lineTo(r.right(), r.bottom() - polomer);
    cesta.quadTo(r.right(), r.bottom(), r.right() - polomer, r.bottom());
    cesta.lineTo(r.left(), r.bottom());
    cesta.closeSubpath();
    return cesta;
}

void nakresliBilou(QPainter& painter, const QRectF& misto, const QColor& lic) {
    QLinearGradient delka(misto.topLeft(), misto.topRight());
    delka.setColorAt(0, lic.darker(116));
    delka.setColorAt(0.12, lic);
    delka.setColorAt(0.95, lic);
    delka.setColorAt(1, lic.darker(118));
    const qreal polomer = misto.height() * 0.18;
    painter.setPen(QPen(QColor(112, 104, 96), 1));
    painter.setBrush(delka);
    painter.drawPath(obrys(misto.adjusted(0.5, 0.5, -0.5, -0.5), polomer));
    painter.fillRect(QRectF(misto.left() + 1, misto.bottom() - 2, misto.width() - 2 - polomer, 1),
                     QColor(0, 0, 0, 26));
}

void nakresliCernou(QPainter& painter, const QRectF& misto, const QColor& lic) {
    const qreal v = misto.height();
    painter.setPen(Qt::NoPen);
    painter.fillPath(obrys(misto, v * 0.25), lic.darker(190));
    // The raised top is narrower than the foot: light falls on its far side and its front slopes down.
    const QRectF hreben = misto.adjusted(0, v * 0.09, -v * 0.42, -v * 0.24);
    if (lic == barvy::oznacenaKlavesa) return painter.fillPath(obrys(hreben, v * 0.2), lic);
    QLinearGradient prechod(hreben.topLeft(), hreben.bottomLeft());
    prechod.setColorAt(0, lic.lighter(lic.lightness() < 60 ? 300 : 135));
    prechod.setColorAt(0.35, lic.lighter(lic.lightness() < 60 ? 160 : 108));
    prechod.setColorAt(1, lic);
    painter.fillPath(obrys(hreben, v * 0.2), prechod);
}

/// Disc with a dark edge: seen without the colour of the key.
void nakresliOznaceni(QPainter& painter, const QRectF& misto, const QColor& barva) {
    const qreal okraj = std::max(1.2, misto.height() * 0.12);
    const qreal o = misto.height() * 0.14;
    painter.setPen(QPen(barvy::okrajZnaku, okraj));
    painter.setBrush(barva);
    painter.drawEllipse(misto.adjusted(o, o, -o, -o));
    painter.setPen(Qt::NoPen);
    painter.setBrush(barvy::okrajZnaku);
    painter.drawEllipse(misto.center(), misto.height() * 0.13, misto.height() * 0.13);
}

} // namespace

void nakresliKlavesu(QPainter& painter, const QRectF& misto, const PodobaPrvku& podoba) {
    const bool cerna = podoba.tvar == TvarPrvku::CernaKlavesa;
    BarvyPrvku barvy = barvyKlavesy(podoba.vyznam, cerna);
    if (!cerna && podoba.tmavy && podoba.vyznam == VyznamPrvku::Volny) barvy.lic = QColor(244, 232, 204);

    painter.setRenderHint(QPainter::Antialiasing);
    if (cerna)
        nakresliCernou(painter, misto, barvy.lic);
    else
        nakresliBilou(painter, misto, barvy.lic);
    const qreal strana = misto.height() * 0.86;
    const qreal odKraje = misto.height() * (cerna ? 0.6 : 0.3);
    const QRectF uKraje(misto.right() - strana - odKraje, misto.center().y() - strana / 2, strana, strana);
    const QRectF znak = uKraje.translated(0, cerna ? -misto.height() * 0.06 : 0);
    if (podoba.vyznam == VyznamPrvku::Oznaceny)
        nakresliOznaceni(painter, znak, barvy.znak);
    else
        nakresliZnak(painter, znak, podoba, barvy.znak);
}

} // namespace zvonika
