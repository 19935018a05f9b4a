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
    predtim_.push_back(stav_);
    const QString kNemu = druh + QString::number(knoflik) + u';';
    Stav stav = stav_;
    QStringList prevzate = stav.zaznamy.first(stav.prevzatych);
    prevzate.removeIf([&](const QString& zaznam) { return zaznam.startsWith(kNemu); });
    stav.zaznamy = prevzate + stav.zaznamy.sliced(stav.prevzatych) + QStringList{kNemu + prst + konecZaznamu};
    stav.prevzatych = prevzate.size();
    zmen(stav);
}

void Prstoklad::odeberPosledni() {
    if (prazdny()) return;
    Stav stav;
    if (predtim_.empty()) {
        stav.zaznamy = stav_.zaznamy.first(stav_.zaznamy.size() - 1);
        stav.prevzatych = std::min(stav_.prevzatych, stav.zaznamy.size());
    } else {
        stav = predtim_.back();
        predtim_.pop_back();
    }
    zmen(stav);
}

QString Prstoklad::odeber() {
    const QString prstoklad = this->prstoklad();
    zacniZnovu({});
    return prstoklad;
}

void Prstoklad::nastav(const QString& prstoklad) {
    // An answer with a backslash in it is one entry as long as it waits here.
    if (prstoklad != this->prstoklad()) zacniZnovu({rozdel(prstoklad), 0});
}

void Prstoklad::prevezmi(const QString& prstoklad) {
    const QStringList zaznamy = rozdel(prstoklad);
    zacniZnovu({zaznamy, zaznamy.size()});
}

void Prstoklad::zacniZnovu(const Stav& stav) {
    predtim_.clear();
    zmen(stav);
}

void Prstoklad::zmen(const Stav& stav) {
    const bool jine = stav.zaznamy != stav_.zaznamy;
    stav_ = stav;
    if (jine) Q_EMIT zmeneno();
}

} // namespace zvonika
