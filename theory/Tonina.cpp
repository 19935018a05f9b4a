#include "theory/Tonina.h"

#include "theory/Toniny.h"

namespace zvonika {

Tonina::Tonina(QObject* parent) : QObject(parent) {}

void Tonina::nastavStupnici(const Key& stupnice) {
    if (stupnice == stupnice_) return;
    stupnice_ = stupnice;
    Q_EMIT changed();
}

bool Tonina::jeZvolena() const {
    return najdiToninu(stupnice_) != nullptr;
}

} // namespace zvonika
