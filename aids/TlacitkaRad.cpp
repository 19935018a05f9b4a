#include "aids/TlacitkaRad.h"

#include <algorithm>

namespace zvonika {

TlacitkaRad::TlacitkaRad()
    : popisky_{QStringLiteral("C Dur"), QStringLiteral("G Dur"), QStringLiteral("F Dur")},
      label1_{QStringLiteral("A Dur"),   QStringLiteral("Es Dur"),  QStringLiteral("Fis Dur"),
              QStringLiteral("Ges Dur"), QStringLiteral("B Dur"),   QStringLiteral("E Dur"),
              QStringLiteral("Des Dur"), QStringLiteral("Cis Dur"), QStringLiteral("Ces Dur"),
              QStringLiteral("H Dur"),   QStringLiteral("As Dur"),  QStringLiteral("D Dur")} {}

const QString& TlacitkaRad::popisek(TlacitkoRad tlacitko) const {
    return popisky_.at(static_cast<std::size_t>(tlacitko));
}

void TlacitkaRad::PosunStupnice() {
    std::rotate(popisky_.begin(), popisky_.begin() + 1, popisky_.end());
    std::rotate(label1_.begin(), label1_.begin() + toninPodTlacitkem, label1_.end());
}

} // namespace zvonika
