#include "playing/recording/Prstoklad.h"

#include <algorithm>
#include <utility>

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

void Prstoklad::odeberPosledni(const std::vector<int>& hmat) {
    Stav stav = stav_;
    if (!predtim_.empty()) {
        stav = predtim_.back();
        predtim_.pop_back();
    } else {
        qsizetype posledni = stav.zaznamy.size() - 1;
        while (posledni >= 0 && !zapiseSe(posledni, hmat))
            --posledni;
        if (posledni < 0) return;
        stav.zaznamy.removeAt(posledni);
        if (posledni < stav.prevzatych) --stav.prevzatych;
    }
    zmen(stav);
}

QStringList Prstoklad::zaznamy(const std::vector<int>& hmat) const {
    QStringList zapisovane;
    for (qsizetype i = 0; i < stav_.zaznamy.size(); ++i)
        if (zapiseSe(i, hmat)) zapisovane << stav_.zaznamy[i];
    return zapisovane;
}

bool Prstoklad::zapiseSe(qsizetype zaznam, const std::vector<int>& hmat) const {
    return zaznam >= stav_.prevzatych ||
           std::find(hmat.begin(), hmat.end(), cisloKnofliku(stav_.zaznamy[zaznam])) != hmat.end();
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

void Prstoklad::zapomenPrevzate() {
    const auto zapomen = [](Stav& stav) { stav.zaznamy.remove(0, std::exchange(stav.prevzatych, 0)); };
    std::for_each(predtim_.begin(), predtim_.end(), zapomen);
    Stav stav = stav_;
    zapomen(stav);
    zmen(stav);
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

int cisloKnofliku(const QString& zaznam) {
    return zaznam.mid(1, zaznam.indexOf(u';') - 1).toInt();
}

} // namespace zvonika
