#include "board/ui/Pozadi.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace zvonika {

namespace {

const QColor drevo(112, 74, 48);

/// Wood grain as light and dark streaks along the body; one gradient fill costs no more than a plain one.
QBrush vyplnDreva(const QRectF& telo) {
    QLinearGradient leta(telo.topLeft(), telo.topRight());
    constexpr int pocet = 36;
    for (int i = 0; i <= pocet; ++i) {
        const double vlna = std::sin(i * 2.3) + std::sin(i * 5.1 + 1) + 0.6 * std::sin(i * 0.9);
        leta.setColorAt(double(i) / pocet, drevo.lighter(static_cast<int>(std::lround(100 + 5 * vlna))));
    }
    return leta;
}

QPainterPath obly(const QRectF& telo, qreal okraj) {
    constexpr qreal polomer = 260;
    QPainterPath obrys;
    obrys.addRoundedRect(telo.adjusted(okraj, okraj, -okraj, -okraj), polomer - okraj, polomer - okraj);
    return obrys;
}

// Lines are drawn as filled bodies in each other: stroking such large outlines costs several times as much.
void nakresliTelo(QPainter& painter, const QRectF& telo) {
    painter.fillPath(obly(telo, 0).translated(10, 25), QColor(0, 0, 0, 60));
    painter.fillPath(obly(telo, 0), QColor(58, 36, 22));
    painter.fillPath(obly(telo, 22), vyplnDreva(telo));
    QPainterPath linka = obly(telo, 48);
    linka.addPath(obly(telo, 62));
    painter.fillPath(linka, QColor(224, 184, 112, 170));
    QLinearGradient svetlo(telo.topLeft(), telo.bottomLeft());
    svetlo.setColorAt(0, QColor(255, 226, 190, 50));
    svetlo.setColorAt(0.25, QColor(255, 226, 190, 0));
    svetlo.setColorAt(0.8, QColor(0, 0, 0, 0));
    svetlo.setColorAt(1, QColor(0, 0, 0, 60));
    painter.fillPath(obly(telo, 22), svetlo);
}

void nakresliDrazku(QPainter& painter, const QRectF& drazka) {
    const qreal polomer = drazka.width() / 2;
    QLinearGradient hloubka(drazka.topLeft(), drazka.topRight());
    hloubka.setColorAt(0, QColor(24, 12, 6, 150));
    hloubka.setColorAt(0.25, QColor(24, 12, 6, 90));
    hloubka.setColorAt(0.8, QColor(24, 12, 6, 70));
    hloubka.setColorAt(1, QColor(255, 220, 180, 40));
    painter.setBrush(hloubka);
    painter.drawRoundedRect(drazka, polomer, polomer);
}

} // namespace

Pozadi::Pozadi(const Nacrt& nacrt, QWidget* parent) : QWidget(parent), nacrt_(nacrt) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Pozadi::prestav(const Nacrt& nacrt) {
    nacrt_ = nacrt;
    obraz_ = {};
    update();
}

void Pozadi::nakresli(QPainter& painter, double meritko) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(meritko, meritko);
    painter.translate(-nacrt_.telo.topLeft());
    painter.setPen(Qt::NoPen);
    QRectF telo = QRectF(nacrt_.telo).adjusted(12, 12, -22, -38);
    if (nacrt_.sklon != 0) {
        painter.translate(telo.topLeft());
        painter.shear(0, nacrt_.sklon);
        painter.translate(-telo.topLeft());
        telo.setHeight(telo.height() - telo.width() * nacrt_.sklon);
    }
    nakresliTelo(painter, telo);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::NoPen);
    for (const QRect& drazka : nacrt_.drazky)
        nakresliDrazku(painter, drazka);
}

void Pozadi::paintEvent(QPaintEvent* event) {
    const qreal dpr = devicePixelRatioF();
    const QSize bodu = (QSizeF(size()) * dpr).toSize();
    if (obraz_.size() != bodu) {
        obraz_ = QPixmap(bodu);
        obraz_.setDevicePixelRatio(dpr);
        obraz_.fill(Qt::transparent);
        QPainter kresba(&obraz_);
        nakresli(kresba, double(width()) / nacrt_.telo.width());
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, obraz_);
}

} // namespace zvonika
