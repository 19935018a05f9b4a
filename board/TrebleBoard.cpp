#include "board/TrebleBoard.h"

#include "theory/NazvyTonu.h"

#include <algorithm>
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

struct TrebleBoard::Pohled {
    bool oznacen;
    StavKnofliku stav;
    BarvaKlavesy klavesa;
    QString ton;
};

TrebleBoard::TrebleBoard(const Nastroj& nastroj, QObject* parent)
    : QObject(parent), nastroj_(nastroj), knofliky_(nastroj.knofliky.size() + 1),
      zabrany_(static_cast<std::size_t>(nastroj.pocetRad) + 1) {
    znacky_.knofliky.resize(knofliky_.size());
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n)
        vratBarvuKlavesy(n);
    if (const int n = nastroj.vyjimecnaKlavesa) znacka(n).klavesa = BarvaKlavesy::WindowBackground;
}

bool TrebleBoard::oznacen(int n) const {
    return znacka(n).oznacen;
}

std::vector<int> TrebleBoard::oznacene() const {
    std::vector<int> oznacene = znacky_.poradi;
    std::sort(oznacene.begin(), oznacene.end());
    return oznacene;
}

Dotek TrebleBoard::nejvyse(int n) const {
    if (n == interval_) return Dotek::NadIntervalem;
    return knoflik(n).hmat == StavKnofliku::Volny ? Dotek::Dole : Dotek::NadHmatem;
}

TrebleBoard::Pohled TrebleBoard::pohled(int n) const {
    return {oznacen(n), stav(n), barvaKlavesy(n), tonKlavesy(n)};
}

void TrebleBoard::oznamZmenu(int n, const Pohled& predtim) {
    const Pohled ted = pohled(n);
    if (ted.oznacen != predtim.oznacen || ted.stav != predtim.stav) Q_EMIT knoflikZmenen(n);
    if (ted.klavesa != predtim.klavesa || ted.ton != predtim.ton) Q_EMIT klavesaZmenena(n);
}

void TrebleBoard::nastavZnacku(int n, bool oznacen) {
    const Pohled predtim = pohled(n);
    if (!zmen(znacka(n).oznacen, oznacen)) return;
    znacka(n).dotek = nejvyse(n);
    if (oznacen) {
        znacky_.poradi.push_back(n);
        znacka(n).klavesa = BarvaKlavesy::Cervena;
    } else {
        std::erase(znacky_.poradi, n);
        znacka(n).tonKlavesy.clear();
        vratBarvuKlavesy(n);
    }
    oznamZmenu(n, predtim);
}

void TrebleBoard::ukazZnacky(const ZnackyDiskantu& znacky) {
    znacky_.poradi = znacky.poradi;
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
        const Pohled predtim = pohled(n);
        znacka(n) = znacky.knofliky.at(static_cast<std::size_t>(n));
        znacka(n).dotek = std::min(znacka(n).dotek, nejvyse(n));
        oznamZmenu(n, predtim);
    }
}

StavKnofliku TrebleBoard::stav(int n) const {
    if (n == interval_ && znacka(n).dotek < Dotek::NadIntervalem) return StavKnofliku::Hnedy;
    const StavKnofliku hmat = knoflik(n).hmat;
    if (hmat != StavKnofliku::Volny && znacka(n).dotek < Dotek::NadHmatem) return hmat;
    return oznacen(n) ? StavKnofliku::Cerveny : StavKnofliku::Volny;
}

StavKnofliku TrebleBoard::stavPomocneho(int n) const {
    return maPomocny(n) ? stav(n) : StavKnofliku::Volny;
}

void TrebleBoard::ukazHmat(int n, StavKnofliku smer) {
    const Pohled predtim = pohled(n);
    knoflik(n).hmat = smer;
    znacka(n).dotek = Dotek::Dole;
    oznamZmenu(n, predtim);
}

void TrebleBoard::odeberHmat() {
    odeberInterval();
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
        const Pohled predtim = pohled(n);
        knoflik(n).hmat = StavKnofliku::Volny;
        znacka(n).dotek = Dotek::Dole;
        oznamZmenu(n, predtim);
    }
}

void TrebleBoard::ukazInterval(int n) {
    odeberInterval();
    const Pohled predtim = pohled(n);
    interval_ = n;
    oznamZmenu(n, predtim);
}

void TrebleBoard::odeberInterval() {
    if (interval_ == 0) return;
    const int n = interval_;
    const Pohled predtim = pohled(n);
    interval_ = 0;
    znacka(n).dotek = std::min(znacka(n).dotek, nejvyse(n));
    oznamZmenu(n, predtim);
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
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
        const QString novy = zapnuto ? nazevTonu(CisloTonu(n), Key(stupnice)).nazev.text() : QString();
        const QString stary = std::exchange(knoflik(n).nazev, novy);
        nastavPopis(n, prejmenuj(popis(n), stary, novy));
        nastavPopisPomocneho(n, prejmenuj(popisPomocneho(n), stary, novy));
    }
    if (prepnuto) Q_EMIT nazvyZmeneny();
}

void TrebleBoard::vyprazdniPopisy() {
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
        nastavPopis(n, knoflik(n).nazev);
        nastavPopisPomocneho(n, knoflik(n).nazev);
    }
}

BarvaKlavesy TrebleBoard::barvaKlavesy(int n) const {
    if (n == interval_ && znacka(n).dotek < Dotek::NadIntervalem) return BarvaKlavesy::Hneda;
    return znacka(n).klavesa;
}

void TrebleBoard::vratBarvuKlavesy(int n) {
    znacka(n).klavesa = jePulton(n) ? BarvaKlavesy::WindowText : BarvaKlavesy::CaptionText;
}

QString TrebleBoard::tonKlavesy(int n) const {
    return znacka(n).tonKlavesy;
}

void TrebleBoard::nastavTonKlavesy(int n, const QString& ton) {
    if (zmen(znacka(n).tonKlavesy, ton)) Q_EMIT klavesaZmenena(n);
}

void TrebleBoard::prejmenujKlavesy(const QString& stupnice) {
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n)
        if (!tonKlavesy(n).isEmpty())
            nastavTonKlavesy(n, nazevTonu(CisloTonu(n), Key(stupnice)).nazev.text());
}

void TrebleBoard::vyprazdniTonyKlaves() {
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n)
        nastavTonKlavesy(n, {});
}

void TrebleBoard::nastavZabranu(int rada, bool zakryta) {
    if (zabrany_.at(static_cast<std::size_t>(rada)) == zakryta) return;
    zabrany_.at(static_cast<std::size_t>(rada)) = zakryta;
    Q_EMIT zabranyZmeneny();
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
    return QString::number(nastroj_.cislo(index).text);
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
    odeberHmat();
    for (const int n : oznacene())
        nastavZnacku(n, false);
}

void TrebleBoard::uvolniKlavesy() {
    for (int n = 1; n <= nastroj_.pocetKnofliku(); ++n) {
        const Pohled predtim = pohled(n);
        vratBarvuKlavesy(n);
        oznamZmenu(n, predtim);
        if (jePulton(n)) nastavZnacku(n, false);
    }
    vyprazdniTonyKlaves(); // a released key carries no name
}

} // namespace zvonika
