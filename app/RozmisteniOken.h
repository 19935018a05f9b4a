#pragma once

#include <QRect>

namespace zvonika {

/// Where the main window and the sheet window stand side by side, in logical pixels, frames included.
struct RozmisteniOken {
    QRect hlavni;
    QRect tabulka;
};

/// Shares the free area of a screen: the main window at its best proportions on the left, the sheet beside
/// it; on a narrow or upright screen the sheet below it, at least `nejmensiVyskaTabulky` tall.
RozmisteniOken rozmistiOkna(const QRect& plocha);

constexpr int nejmensiVyskaTabulky = 230; ///< room for five rows with everything around them
constexpr int nejmensiSirkaTabulky = 300;

} // namespace zvonika
