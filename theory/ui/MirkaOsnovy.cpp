#include "theory/ui/MirkaOsnovy.h"

#include "theory/PolohaNoty.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace zvonika {

int MirkaOsnovy::jednotky(double y) const {
    const double presne = e1 + (yE1 - y) / mezera * jednotekNaMezeru;
    const double vRozsahu = std::clamp(presne, double(nejnizsi), double(nejvyssi));
    return PolohaNoty::zaokrouhli(static_cast<int>(std::lround(vRozsahu)));
}

MirkaOsnovy MirkaOsnovy::proPole(const QRectF& pole, double nejvice, double dpr) {
    const double vejdeSe = std::min(pole.height() / vyskaRozsahu, nejvice);
    MirkaOsnovy mirka;
    mirka.mezera = std::max(std::floor(vejdeSe * dpr), 2.0) / dpr;
    const double stredRozsahu = (nejnizsi + nejvyssi) / 2.0 - e1;
    const double y = pole.center().y() + stredRozsahu / jednotekNaMezeru * mirka.mezera;
    mirka.yE1 = std::round(y * dpr) / dpr;
    return mirka;
}

} // namespace zvonika
