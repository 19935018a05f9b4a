#include "theory/ui/ObrazPredznamenani.h"

#include "theory/ui/OsnovaPainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zvonika {

namespace {
constexpr double vyskaKlice = 7.4; ///< staff spaces
constexpr double sirkaVseho = 11;  ///< staff spaces of clef, seven signs and air
constexpr double nadKlicem = 1.5;  ///< staff spaces above the top line
} // namespace

QPixmap obrazPredznamenani(const Predznamenani& predznamenani, QSize velikost, double dpr) {
    QPixmap obraz(velikost * dpr);
    obraz.setDevicePixelRatio(dpr);
    obraz.fill(Qt::transparent);
    QPainter painter(&obraz);
    const QRectF plocha(QRect({}, velikost));
    OsnovaPainter::papir(painter, plocha);
    MirkaOsnovy mirka;
    const double vejdeSe = std::min((plocha.height() - 3) / vyskaKlice, (plocha.width() - 4) / sirkaVseho);
    mirka.mezera = std::max(2.0, std::floor(vejdeSe * dpr)) / dpr;
    mirka.yE1 =
        std::round((plocha.center().y() + (4 + nadKlicem - vyskaKlice / 2) * mirka.mezera) * dpr) / dpr;
    OsnovaPainter kresba(painter, mirka);
    kresba.linky(3, plocha.width() - 3);
    kresba.klic(4);
    kresba.predznamenani(4 + (OsnovaPainter::sirkaKlice + 0.5) * mirka.mezera, predznamenani);
    return obraz;
}

} // namespace zvonika
