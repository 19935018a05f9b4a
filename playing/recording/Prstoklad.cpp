#include "playing/recording/Prstoklad.h"

namespace zvonika {

namespace {

constexpr QChar konecZaznamu = u'\\';

QStringList rozdel(const QString& prstoklad) {
    QStringList zaznamy;
    for (qsizetype od = 0, za = 0; od < prstoklad.size(); od = za) {
        const auto konec = prstoklad.indexOf(konecZaznamu, od);
        za = konec < 0 ? prstoklad.size() : konec + 1;
        zaznamy << prstoklad.mid(od, za - od);
    }
    return zaznamy;
}

} // namespace

void Prstoklad::pridej(QChar druh, int knoflik, const QString& prst) {
    zmen(zaznamy_ + QStringList{druh + QString::number(knoflik) + u';' + prst + konecZaznamu});
}

void Prstoklad::odeberPosledni() {
    if (!prazdny()) zmen(zaznamy_.first(zaznamy_.size() - 1));
}

QString Prstoklad::odeber() {
    const QString prstoklad = this->prstoklad();
    zmen({});
    return prstoklad;
}

void Prstoklad::nastav(const QString& prstoklad) {
    // An answer with a backslash in it is one entry as long as it waits here.
    if (prstoklad != this->prstoklad()) zmen(rozdel(prstoklad));
}

void Prstoklad::zmen(const QStringList& zaznamy) {
    if (zaznamy == zaznamy_) return;
    zaznamy_ = zaznamy;
    Q_EMIT zmeneno();
}

} // namespace zvonika
