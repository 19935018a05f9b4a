#include "theory/Tonina.h"

namespace zvonika {

Tonina::Tonina(QObject* parent) : QObject(parent) {}

void Tonina::nastavStupnici(const Key& stupnice) {
    if (stupnice == stupnice_) return;
    stupnice_ = stupnice;
    Q_EMIT changed();
}

} // namespace zvonika
