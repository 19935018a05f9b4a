#include "theory/Toniny.h"

#include <algorithm>

namespace zvonika {

QString normalizujStupnici(QString stupnice) {
    stupnice.replace(u'D', u'd');
    stupnice.remove(u' ');
    return stupnice;
}

const DurovaTonina* najdiToninu(const Key& stupnice) {
    const QString hledana = normalizujStupnici(stupnice.text());
    const auto nalezena = std::find_if(toniny.begin(), toniny.end(), [&](const DurovaTonina& tonina) {
        return normalizujStupnici(tonina.nazev.toString()) == hledana;
    });
    return nalezena == toniny.end() ? nullptr : &*nalezena;
}

} // namespace zvonika
