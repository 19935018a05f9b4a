#include "app/RozmisteniOken.h"

#include <algorithm>

namespace zvonika {

namespace {
constexpr double pomerSceny = 16000.0 / 10400; // of the scene in the main window
constexpr int okraje = 84;                     // title bar, menu bar and status line
} // namespace

RozmisteniOken rozmistiOkna(const QRect& plocha) {
    const int sirkaPodleVysky = static_cast<int>((plocha.height() - okraje) * pomerSceny);
    const int sirkaVedle = std::min(sirkaPodleVysky, plocha.width() * 70 / 100);
    const int zbytek = plocha.width() - sirkaVedle;
    const int vyskaVedle = static_cast<int>(sirkaVedle / pomerSceny) + okraje;

    const int vyskaNad = plocha.height() - nejmensiVyskaTabulky;
    const int sirkaNad = std::min(plocha.width(), static_cast<int>((vyskaNad - okraje) * pomerSceny));
    if (zbytek < nejmensiSirkaTabulky || sirkaNad > sirkaVedle)
        return {QRect(plocha.left(), plocha.top(), plocha.width(), vyskaNad),
                QRect(plocha.left(), plocha.top() + vyskaNad, plocha.width(), nejmensiVyskaTabulky)};
    return {QRect(plocha.left(), plocha.top(), sirkaVedle, std::min(vyskaVedle, plocha.height())),
            QRect(plocha.left() + sirkaVedle, plocha.top(), zbytek, plocha.height())};
}

} // namespace zvonika
