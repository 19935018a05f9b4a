#include "song/CommandStates.h"

namespace zvonika {

void CommandStates::povol(const QString& prikaz, bool povolit) {
    const bool predtim = povolen(prikaz);
    if (povolit)
        zakazane_.remove(prikaz);
    else
        zakazane_.insert(prikaz);
    if (povolen(prikaz) != predtim) Q_EMIT zmeneno(prikaz, povolit);
}

void CommandStates::zamkni(const QString& prikaz) {
    const bool predtim = povolen(prikaz);
    zamcene_.insert(prikaz);
    if (predtim) Q_EMIT zmeneno(prikaz, false);
}

} // namespace zvonika
