#include "playing/recording/Prstoklad.h"

#include <algorithm>

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
    const QString ci = druh + QString::number(knoflik) + u';';
    zmen(bezPrevzateho(ci) + QStringList{ci + prst + konecZaznamu});
}

QStringList Prstoklad::bezPrevzateho(const QString& knoflik) {
    QStringList prevzate = zaznamy_.first(prevzato_);
    prevzate.removeIf([&knoflik](const QString& zaznam) { return zaznam.startsWith(knoflik); });
    const QStringList zadane = zaznamy_.sliced(prevzato_);
    prevzato_ = prevzate.size();
    return prevzate + zadane;
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
    prevzato_ = 0;
}

void Prstoklad::prevezmi(const QString& prstoklad) {
    nastav(prstoklad);
    prevzato_ = zaznamy_.size();
}

void Prstoklad::zmen(const QStringList& zaznamy) {
    prevzato_ = std::min(prevzato_, zaznamy.size());
    if (zaznamy == zaznamy_) return;
    zaznamy_ = zaznamy;
    Q_EMIT zmeneno();
}

} // namespace zvonika
