#include "song/Grip.h"

namespace zvonika {

SmerMechu smerMechu(const QString& text) {
    if (text == QLatin1String("Tah")) return SmerMechu::Tah;
    if (text == QLatin1String("Tlak")) return SmerMechu::Tlak;
    return SmerMechu::Neuveden;
}

QString textSmeru(SmerMechu smer) {
    switch (smer) {
    case SmerMechu::Tah:
        return QStringLiteral("Tah");
    case SmerMechu::Tlak:
        return QStringLiteral("Tlak");
    case SmerMechu::Neuveden:
        break;
    }
    return {};
}

} // namespace zvonika
