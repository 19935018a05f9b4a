#include "aids/ui/IkonyProhlizece.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zvonika {

namespace {

// Every picture is drawn on a square of 24 units with a round pen; `plne` is filled as well.
struct Kresba {
    QPainterPath cary;
    QPainterPath plne;
};

QPainterPath lomena(std::initializer_list<QPointF> body) {
    QPainterPath cara(*body.begin());
    for (const QPointF& bod : body)
        cara.lineTo(bod);
    return cara;
}

Kresba sipka(double smer) {
    const auto x = [smer](double v) { return 12 + smer * v; };
    Kresba k;
    k.cary = lomena({{x(-7), 12}, {x(7), 12}});
    k.cary.addPath(lomena({{x(0.5), 5.5}, {x(7), 12}, {x(0.5), 18.5}}));
    return k;
}

Kresba obnoveni() {
    Kresba k;
    k.cary.arcMoveTo(QRectF(5, 5, 14, 14), 55);
    k.cary.arcTo(QRectF(5, 5, 14, 14), 55, 290);
    k.plne = lomena({{13.2, 8.2}, {19.8, 9.2}, {19.0, 2.6}});
    k.plne.closeSubpath();
    return k;
}

Kresba domecek() {
    Kresba k;
    k.cary = lomena({{4, 12}, {12, 4.5}, {20, 12}});
    k.cary.addPath(lomena({{6.5, 10.5}, {6.5, 19.5}, {17.5, 19.5}, {17.5, 10.5}}));
    k.cary.addPath(lomena({{10.3, 19.5}, {10.3, 14}, {13.7, 14}, {13.7, 19.5}}));
    return k;
}

Kresba lupa() {
    Kresba k;
    k.cary.addEllipse(QPointF(10.5, 10.5), 6, 6);
    k.cary.addPath(lomena({{15, 15}, {20, 20}}));
    return k;
}

Kresba krizek() {
    Kresba k;
    k.cary = lomena({{6, 6}, {18, 18}});
    k.cary.addPath(lomena({{18, 6}, {6, 18}}));
    return k;
}

Kresba kresba(const QString& klic) {
    if (klic == QLatin1String("Back")) return sipka(-1);
    if (klic == QLatin1String("Forward")) return sipka(1);
    if (klic == QLatin1String("Refresh")) return obnoveni();
    if (klic == QLatin1String("Home")) return domecek();
    if (klic == QLatin1String("Search")) return lupa();
    if (klic == QLatin1String("Stop")) return krizek();
    return {};
}

QPixmap obraz(const Kresba& k, int strana, const QColor& barva) {
    QPixmap plocha(strana, strana);
    plocha.fill(Qt::transparent);
    QPainter painter(&plocha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(strana / 24.0, strana / 24.0);
    painter.setPen(QPen(barva, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(k.cary);
    painter.fillPath(k.plne, barva);
    return plocha;
}

} // namespace

QIcon imlIcons(const QString& klic) {
    const Kresba k = kresba(klic);
    QIcon ikona;
    if (k.cary.isEmpty()) return ikona;
    for (const int strana : {24, 48, 96}) {
        ikona.addPixmap(obraz(k, strana, QColor(0x7A, 0x1F, 0x16)));
        ikona.addPixmap(obraz(k, strana, QColor(0xC4, 0xBC, 0xAE)), QIcon::Disabled);
    }
    return ikona;
}

} // namespace zvonika
