#include "song/CommandStates.h"

namespace zvonika {

void CommandStates::povol(const QString& prikaz, bool povolit) {
    if (povolen(prikaz) == povolit) return;
    if (povolit)
        zakazane_.remove(prikaz);
    else
        zakazane_.insert(prikaz);
    Q_EMIT zmeneno(prikaz, povolit);
}

} // namespace zvonika
