#include "platform/HodnotyNastaveni.h"

#include "platform/RuntimeError.h"

#include <cfenv>
#include <cmath>

namespace zvonika {

namespace {

double naCislo(QString text) {
    text = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.'));
    bool platne = false;
    const double cislo = text.toDouble(&platne);
    if (!platne || !std::isfinite(cislo)) throw RuntimeError(error::typeMismatch);
    return cislo;
}

} // namespace

std::uint8_t naBajt(const QString& text) {
    const double cislo = std::nearbyint(naCislo(text)); // the default rounding mode is to even
    if (cislo < 0 || cislo > 255) throw RuntimeError(error::overflow);
    return static_cast<std::uint8_t>(cislo);
}

bool naPravdu(const QString& text) {
    const QString slovo = text.trimmed();
    if (slovo.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
    if (slovo.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
    return naCislo(slovo) != 0;
}

} // namespace zvonika
