#include "theory/NazevIntervalu.h"

#include <cstdlib>

namespace zvonika {

QString NazevIntervalu(std::int16_t kroky) {
    const auto poradi = static_cast<std::size_t>(std::abs(int(kroky)));
    if (poradi == 0 || poradi > jmenaIntervalu.size()) return QStringLiteral("nepojmenovaný");
    const auto smer = kroky > 0 ? QStringLiteral("vrchní ") : QStringLiteral("spodní ");
    return smer + jmenaIntervalu[poradi - 1].toString();
}

} // namespace zvonika
