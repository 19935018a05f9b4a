#include "song/ZobrazovaciOsnova.h"

namespace zvonika {

void ZobrazovaciOsnova::ukaz(const QStringList& tony) {
    if (tony_ == tony) return;
    tony_ = tony;
    Q_EMIT zmeneno();
}

} // namespace zvonika
