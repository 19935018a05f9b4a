#include "theory/ui/MistaZapisu.h"

#include "theory/NotovaOsnova.h"
#include "theory/ui/OsnovaPainter.h"

#include <cmath>

namespace zvonika {

namespace {

constexpr double okraj = 4;             ///< px around the palette
constexpr double mezeraKlice = 0.4;     ///< staff spaces before and behind the clef
constexpr double sirkaZnamenek = 7.3;   ///< staff spaces for the longest signature and a little air
constexpr double nejmensiSlot = 2.3;    ///< staff spaces: a head and its sign
constexpr double mezeraNadZnamenky = 2; ///< staff spaces above the top line that clef and signature need

} // namespace

MistaZapisu MistaZapisu::pro(const QRectF& plocha, double vyskaNazvu, double dpr) {
    constexpr double predSloty = 2 * mezeraKlice + OsnovaPainter::sirkaKlice + sirkaZnamenek;
    MistaZapisu mista;
    mista.plocha = plocha;
    mista.nazvy = plocha.bottom() - vyskaNazvu;
    const double nejvice = plocha.width() / (predSloty + NotovaOsnova::pocetNot * nejmensiSlot + mezeraKlice);
    mista.mirka =
        MirkaOsnovy::proPole({plocha.topLeft(), QPointF(plocha.right(), mista.nazvy)}, nejvice, dpr);
    const double mezera = mista.mirka.mezera;
    mista.klic = plocha.left() + mezeraKlice * mezera + 2;
    mista.predznamenani = mista.klic + (OsnovaPainter::sirkaKlice + mezeraKlice) * mezera;
    mista.prvniSlot = plocha.left() + predSloty * mezera;
    mista.sirkaSlotu = (plocha.right() - mezeraKlice * mezera - mista.prvniSlot) / NotovaOsnova::pocetNot;
    const double podPaletou = mista.mirka.y(MirkaOsnovy::f2) - mezeraNadZnamenky * mezera;
    mista.paleta = QRectF(plocha.left() + okraj, plocha.top() + okraj, mista.prvniSlot - 2 * okraj,
                          std::min(podPaletou - plocha.top() - 2 * okraj, 4.2 * mezera));
    return mista;
}

QRectF MistaZapisu::slot(int i) const {
    return {prvniSlot + i * sirkaSlotu, plocha.top(), sirkaSlotu, plocha.height()};
}

QRectF MistaZapisu::nazev(int i) const {
    return {prvniSlot + i * sirkaSlotu, nazvy, sirkaSlotu, plocha.bottom() - nazvy - 1};
}

std::optional<int> MistaZapisu::slotNa(double x) const {
    const double poradi = std::floor((x - prvniSlot) / sirkaSlotu);
    if (poradi < 0 || poradi >= NotovaOsnova::pocetNot) return std::nullopt;
    return static_cast<int>(poradi);
}

} // namespace zvonika
