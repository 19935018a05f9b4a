#include "theory/ui/Znacky.h"

#include "theory/ui/Pero.h"

#include <QTransform>

#include <array>

namespace zvonika::znacky {

namespace {

/// The whole clef is one line of a broad pen: from the inside of the spiral out, up to the loop, down the
/// stem and into the drop.
constexpr std::array<BodPera, 34> tahKlice{{
    {1.47, 0.57, 0.10},  {1.12, 0.50, 0.15},  {0.90, 0.20, 0.20},  {0.95, -0.22, 0.24}, {1.28, -0.58, 0.29},
    {1.72, -0.62, 0.34}, {2.17, -0.36, 0.37}, {2.36, 0.08, 0.35},  {2.24, 0.55, 0.28},  {1.88, 0.90, 0.20},
    {1.38, 1.04, 0.16},  {0.86, 0.93, 0.20},  {0.42, 0.58, 0.29},  {0.20, 0.06, 0.37},  {0.26, -0.52, 0.38},
    {0.56, -1.08, 0.35}, {1.00, -1.60, 0.32}, {1.44, -2.08, 0.29}, {1.78, -2.60, 0.25}, {1.95, -3.20, 0.19},
    {1.93, -3.74, 0.14}, {1.79, -4.12, 0.11}, {1.60, -4.22, 0.13}, {1.40, -3.98, 0.21}, {1.26, -3.52, 0.25},
    {1.21, -2.98, 0.23}, {1.31, -2.30, 0.19}, {1.54, -0.90, 0.17}, {1.78, 0.60, 0.16},  {1.92, 1.55, 0.15},
    {1.84, 2.16, 0.14},  {1.50, 2.50, 0.13},  {1.08, 2.49, 0.15},  {0.80, 2.26, 0.16},
}};
constexpr QPointF kapkaKlice(0.98, 2.02);
constexpr double polomerKapky = 0.35;

QPainterPath nakresliKlic() {
    QPainterPath klic = tahPera(tahKlice);
    klic.addEllipse(kapkaKlice, polomerKapky, polomerKapky);
    return klic;
}

QPainterPath dutka(double x, double shora, double dolu, double sirka) {
    QPainterPath cara;
    cara.addRoundedRect(QRectF(x - sirka / 2, shora, sirka, dolu - shora), sirka / 2, sirka / 2);
    return cara;
}

/// A rising beam between two stems; `y` is its middle at half way.
QPainterPath tram(double x1, double x2, double y, double stoupani, double tloustka) {
    QPainterPath plocha;
    plocha.moveTo(x1, y + stoupani / 2 - tloustka / 2);
    plocha.lineTo(x2, y - stoupani / 2 - tloustka / 2);
    plocha.lineTo(x2, y - stoupani / 2 + tloustka / 2);
    plocha.lineTo(x1, y + stoupani / 2 + tloustka / 2);
    plocha.closeSubpath();
    return plocha;
}

/// All parts must run the same way round, a hole the other way.
QPainterPath slozena(std::initializer_list<QPainterPath> dily) {
    QPainterPath cela;
    cela.setFillRule(Qt::WindingFill);
    for (const QPainterPath& dil : dily)
        cela.addPath(dil);
    return cela;
}

QPainterPath nakresliBecko() {
    QPainterPath bricho;
    bricho.moveTo(0.06, -0.28);
    bricho.cubicTo(0.30, -0.62, 0.92, -0.66, 0.92, -0.16);
    bricho.cubicTo(0.92, 0.22, 0.46, 0.48, 0.06, 0.74);
    bricho.closeSubpath();
    QPainterPath otvor;
    otvor.moveTo(0.14, -0.16);
    otvor.cubicTo(0.28, -0.36, 0.62, -0.44, 0.62, -0.12);
    otvor.cubicTo(0.62, 0.12, 0.36, 0.32, 0.14, 0.48);
    otvor.closeSubpath();
    return slozena({bricho, otvor.toReversed(), dutka(0.07, -1.75, 0.74, 0.13)});
}

QPainterPath nakresliHlavicku() {
    QPainterPath elipsa;
    elipsa.addEllipse(QPointF(), 0.65, 0.46);
    return QTransform().rotate(-19).map(elipsa);
}

} // namespace

const QPainterPath& houslovyKlic() {
    static const QPainterPath znacka = nakresliKlic();
    return znacka;
}

const QPainterPath& krizek() {
    static const QPainterPath znacka =
        slozena({dutka(0.32, -1.24, 1.40, 0.12), dutka(0.68, -1.40, 1.24, 0.12),
                 tram(0, 1.0, -0.52, 0.26, 0.30), tram(0, 1.0, 0.52, 0.26, 0.30)});
    return znacka;
}

const QPainterPath& becko() {
    static const QPainterPath znacka = nakresliBecko();
    return znacka;
}

const QPainterPath& odrazka() {
    static const QPainterPath znacka =
        slozena({dutka(0.07, -1.36, 0.72, 0.12), dutka(0.63, -0.72, 1.36, 0.12),
                 tram(0.06, 0.64, -0.48, 0.18, 0.28), tram(0.06, 0.64, 0.48, 0.18, 0.28)});
    return znacka;
}

const QPainterPath& hlavicka() {
    static const QPainterPath znacka = nakresliHlavicku();
    return znacka;
}

const QPainterPath& ctverec() {
    static const QPainterPath znacka = [] {
        QPainterPath obrys;
        obrys.addRect(-0.48, -0.48, 0.96, 0.96);
        return obrys;
    }();
    return znacka;
}

} // namespace zvonika::znacky
