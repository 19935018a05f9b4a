#include "playing/undo/SeznamyKroku.h"

#include "platform/files/RegularFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <limits>
#include <utility>

namespace zvonika {

namespace {

/// "" where the file cannot be read.
QByteArray otisk(const QString& soubor) {
    QFile file;
    if (openRegular(file, soubor, Links::Follow, std::numeric_limits<qint64>::max())) return {};
    QCryptographicHash otisk(QCryptographicHash::Sha1);
    return otisk.addData(&file) ? otisk.result() : QByteArray();
}

} // namespace

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

void SeznamyKroku::uspi() {
    const SeznamKroku* seznam = otevrene();
    if (seznam && !seznam->prazdny()) otisky_.insert(klicOtevrene(), otisk(klicOtevrene()));
}

bool SeznamyKroku::probud() {
    const auto predtim = otisky_.find(klicOtevrene());
    if (predtim == otisky_.end()) return true;
    const bool stejny = *predtim == otisk(predtim.key());
    otisky_.erase(predtim);
    if (!stejny) seznamy_.remove(klicOtevrene());
    return stejny;
}

void SeznamyKroku::zapomen(const QString& plneJmeno) {
    seznamy_.remove(klic(plneJmeno));
    otisky_.remove(klic(plneJmeno));
}

void SeznamyKroku::prejmenuj(const QString& plneJmeno) {
    seznamy_.insert(klic(plneJmeno), seznamy_.take(klicOtevrene()));
}

} // namespace zvonika
