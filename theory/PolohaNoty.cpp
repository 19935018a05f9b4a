#include "theory/PolohaNoty.h"

#include <cmath>

namespace zvonika {

std::optional<PolohaNoty> PolohaNoty::zTextu(const QString& text) {
    PolohaNoty poloha;
    if (text.startsWith(u'k'))
        poloha.znamenko = Znamenko::Krizek;
    else if (text.startsWith(u'b'))
        poloha.znamenko = Znamenko::Becko;
    bool jeCislo = false;
    poloha.jednotky = QStringView(text).mid(poloha.znamenko == Znamenko::Zadne ? 0 : 1).toInt(&jeCislo);
    return jeCislo ? std::optional(poloha) : std::nullopt;
}

int PolohaNoty::zaokrouhli(int jednotky) {
    return static_cast<int>(std::floor(jednotky / double(jednotekNaStupen) + 0.5)) * jednotekNaStupen;
}

} // namespace zvonika
