#include "playing/undo/SeznamyKroku.h"

#include <QDir>

#include <utility>

namespace zvonika {

// One song has many names: "C:\...", the native one, and what leads over other folders.
QString SeznamyKroku::klic(const QString& plneJmeno) const {
    return QDir::cleanPath(drive_.nativePath(plneJmeno));
}

QString SeznamyKroku::klicOtevrene() const {
    return pisen_.plneJmeno.isEmpty() ? pisen_.aktualniPisen : klic(pisen_.plneJmeno);
}

SeznamKroku* SeznamyKroku::otevrene() {
    return pisen_.otevrena() ? &seznamy_[klicOtevrene()] : nullptr;
}

QString SeznamyKroku::popis(SmerKroku smer) const {
    const SeznamKroku* seznam = otevrene();
    return seznam ? seznam->popis(smer) : QString();
}

void SeznamyKroku::pridej(KrokSeznamu krok) {
    SeznamKroku* seznam = otevrene();
    if (seznam && !krok.krok.parts.empty()) seznam->pridej(std::move(krok));
}

void SeznamyKroku::zapomen(const QString& plneJmeno) {
    seznamy_.remove(klic(plneJmeno));
}

void SeznamyKroku::prejmenuj(const QString& plneJmeno) {
    seznamy_.insert(klic(plneJmeno), seznamy_.take(klicOtevrene()));
}

} // namespace zvonika
