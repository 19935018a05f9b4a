#include "board/TrebleBoard.h"

#include "theory/NazvyTonu.h"

#include <utility>

namespace zvonika {

namespace {

// "otočeno" from label 6 on; it reads downward, from 12 to 6.
constexpr int prvniPismeno = 6;
constexpr QStringView slovoOdzadu = u"onečoto";

bool jePismeno(int index) {
    return index >= prvniPismeno && index < prvniPismeno + slovoOdzadu.size();
}

/// Sets a value and tells whether it was another one before: who watches the board repaints only what
/// changed.
template <typename T>
bool zmen(T& misto, const T& hodnota) {
    if (misto == hodnota) return false;
    misto = hodnota;
    return true;
}

/// Puts the new name under the fingers that are stacked on the old one.
QString prejmenuj(const QString& popis, const QString& stary, const QString& novy) {
    if (!popis.endsWith(stary)) return novy;
    return popis.chopped(stary.size()) + novy;
}

} // namespace

TrebleBoard::TrebleBoard(QObject* parent) : QObject(parent) {
    for (int n = 1; n <= pocetKnofliku; ++n)
        vratBarvuKlavesy(n);
    knoflik(28).klavesa = BarvaKlavesy::WindowBackground;
}

bool TrebleBoard::oznacen(int n) const {
    return knoflik(n).oznacen;
}

void TrebleBoard::nastavZnacku(int n, bool oznacen) {
    if (!zmen(knoflik(n).oznacen, oznacen)) return;
    if (oznacen)
        poradiZnacek_.push_back(n);
    else
        std::erase(poradiZnacek_, n);
    Q_EMIT knoflikZmenen(n);
}

StavKnofliku TrebleBoard::stav(int n) const {
    return knoflik(n).stav;
}

StavKnofliku TrebleBoard::stavPomocneho(int n) const {
    return knoflik(n).stavPomocneho;
}

void TrebleBoard::ukaz(int n, StavKnofliku stav) {
    ukazHlavni(n, stav);
    ukazPomocny(n, stav);
}

void TrebleBoard::ukazHlavni(int n, StavKnofliku stav) {
    if (zmen(knoflik(n).stav, stav)) Q_EMIT knoflikZmenen(n);
}

void TrebleBoard::ukazPomocny(int n, StavKnofliku stav) {
    if (maPomocny(n) && zmen(knoflik(n).stavPomocneho, stav)) Q_EMIT knoflikZmenen(n);
}

void TrebleBoard::ukazInterval(int n) {
    odeberInterval();
    podIntervalem_ = {n, stav(n), stavPomocneho(n), barvaKlavesy(n)};
    ukaz(n, StavKnofliku::Hnedy);
    nastavBarvuKlavesy(n, BarvaKlavesy::Hneda);
}

void TrebleBoard::odeberInterval() {
    const PodIntervalem pod = std::exchange(podIntervalem_, {});
    if (pod.n == 0) return;
    if (stav(pod.n) == StavKnofliku::Hnedy) ukazHlavni(pod.n, pod.stav);
    if (stavPomocneho(pod.n) == StavKnofliku::Hnedy) ukazPomocny(pod.n, pod.stavPomocneho);
    if (barvaKlavesy(pod.n) == BarvaKlavesy::Hneda) nastavBarvuKlavesy(pod.n, pod.klavesa);
}

QString TrebleBoard::popis(int n) const {
    return knoflik(n).popis;
}

QString TrebleBoard::popisPomocneho(int n) const {
    return knoflik(n).popisPomocneho;
}

void TrebleBoard::nastavPopis(int n, const QString& popis) {
    if (zmen(knoflik(n).popis, popis)) Q_EMIT knoflikZmenen(n);
}

void TrebleBoard::nastavPopisPomocneho(int n, const QString& popis) {
    if (maPomocny(n) && zmen(knoflik(n).popisPomocneho, popis)) Q_EMIT knoflikZmenen(n);
}

void TrebleBoard::nastavNazvy(bool zapnuto, const QString& stupnice) {
    const bool prepnuto = zmen(nazvy_, zapnuto);
    for (int n = 1; n <= pocetKnofliku; ++n) {
        const QString novy = zapnuto ? nazevTonu(CisloTonu(n), Key(stupnice)).nazev.text() : QString();
        const QString stary = std::exchange(knoflik(n).nazev, novy);
        nastavPopis(n, prejmenuj(popis(n), stary, novy));
        nastavPopisPomocneho(n, prejmenuj(popisPomocneho(n), stary, novy));
    }
    if (prepnuto) Q_EMIT nazvyZmeneny();
}

void TrebleBoard::vyprazdniPopisy() {
    for (int n = 1; n <= pocetKnofliku; ++n) {
        nastavPopis(n, knoflik(n).nazev);
        nastavPopisPomocneho(n, knoflik(n).nazev);
    }
}

BarvaKlavesy TrebleBoard::barvaKlavesy(int n) const {
    return knoflik(n).klavesa;
}

void TrebleBoard::nastavBarvuKlavesy(int n, BarvaKlavesy barva) {
    if (zmen(knoflik(n).klavesa, barva)) Q_EMIT klavesaZmenena(n);
}

void TrebleBoard::vratBarvuKlavesy(int n) {
    nastavBarvuKlavesy(n, jePulton(n) ? BarvaKlavesy::WindowText : BarvaKlavesy::CaptionText);
}

QString TrebleBoard::tonKlavesy(int n) const {
    return knoflik(n).tonKlavesy;
}

void TrebleBoard::nastavTonKlavesy(int n, const QString& ton) {
    if (zmen(knoflik(n).tonKlavesy, ton)) Q_EMIT klavesaZmenena(n);
}

void TrebleBoard::vyprazdniTonyKlaves() {
    for (int n = 1; n <= pocetKnofliku; ++n)
        nastavTonKlavesy(n, {});
}

void TrebleBoard::nastavZabranu(int rada, bool zakryta) {
    if (zmen(zabrany_.at(static_cast<std::size_t>(rada)), zakryta)) Q_EMIT zabranyZmeneny();
}

bool TrebleBoard::zakryta(int rada) const {
    return zabrany_.at(static_cast<std::size_t>(rada));
}

void TrebleBoard::nastavCislovani(bool viditelne) {
    const bool slovoZmeneno = otoceno_ && zmen(slovoViditelne_, viditelne);
    if (zmen(cislovani_, viditelne) || slovoZmeneno) Q_EMIT cislovaniZmeneno();
}

QString TrebleBoard::popisCisla(int index) const {
    if (otoceno_ && jePismeno(index)) return slovoOdzadu.at(index - prvniPismeno);
    return QString::number(textCisla(index));
}

bool TrebleBoard::cisloViditelne(int index) const {
    return cislovani_ || (slovoViditelne_ && jePismeno(index));
}

void TrebleBoard::otoc() {
    if (!zmen(otoceno_, true)) return;
    slovoViditelne_ = true;
    Q_EMIT hmatnikOtocen();
    Q_EMIT cislovaniZmeneno();
}

void TrebleBoard::nastavObraceneCislovani(bool obracene) {
    if (zmen(obraceneCislovani_, obracene)) Q_EMIT cislovaniZmeneno();
}

void TrebleBoard::uvolniDiskant() {
    for (int n = 1; n <= pocetKnofliku; ++n) {
        ukaz(n, StavKnofliku::Volny);
        nastavZnacku(n, false);
    }
}

void TrebleBoard::uvolniKlavesy() {
    for (int n = 1; n <= pocetKnofliku; ++n) {
        vratBarvuKlavesy(n);
        if (jePulton(n)) nastavZnacku(n, false);
    }
    vyprazdniTonyKlaves(); // a released key carries no name
}

} // namespace zvonika
