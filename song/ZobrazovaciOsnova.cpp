#include "song/ZobrazovaciOsnova.h"

namespace zvonika {

void ZobrazovaciOsnova::ukaz(const QStringList& tony) {
    prevezmi(tony, {});
}

void ZobrazovaciOsnova::prevezmi(const QStringList& tony, const std::optional<NotaIntervalu>& interval) {
    if (tony_ == tony && interval_ == interval) return;
    tony_ = tony;
    interval_ = interval;
    Q_EMIT zmeneno();
}

} // namespace zvonika
