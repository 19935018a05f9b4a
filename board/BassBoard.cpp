#include "board/BassBoard.h"

namespace zvonika {

BassBoard::BassBoard(const Nastroj& nastroj, QObject* parent)
    : QObject(parent), nastroj_(nastroj), hmat_(nastroj.basy.size() + 1) {
    znacky_.basy.resize(hmat_.size());
}

bool BassBoard::oznacen(int bas) const {
    return znacky_.basy.at(static_cast<std::size_t>(bas)).oznacen;
}

std::vector<int> BassBoard::oznacene() const {
    std::vector<int> oznacene;
    for (int bas = 1; bas <= nastroj_.pocetBasu(); ++bas)
        if (oznacen(bas)) oznacene.push_back(bas);
    return oznacene;
}

void BassBoard::nastavZnacku(int bas, bool oznacit) {
    if (oznacen(bas) == oznacit) return;
    const StavBasu hmat = hmat_.at(static_cast<std::size_t>(bas));
    zmen(bas, {oznacit, hmat != StavBasu::Volny}, hmat);
}

StavBasu BassBoard::stav(int bas) const {
    const auto i = static_cast<std::size_t>(bas);
    if (hmat_.at(i) != StavBasu::Volny && !znacky_.basy.at(i).nadHmatem) return hmat_.at(i);
    return oznacen(bas) ? StavBasu::Cerveny : StavBasu::Volny;
}

void BassBoard::ukazZnacky(const ZnackyBasu& znacky) {
    for (int bas = 1; bas <= nastroj_.pocetBasu(); ++bas) {
        const StavBasu hmat = hmat_.at(static_cast<std::size_t>(bas));
        Znacka znacka = znacky.basy.at(static_cast<std::size_t>(bas));
        znacka.nadHmatem &= hmat != StavBasu::Volny;
        zmen(bas, znacka, hmat);
    }
}

void BassBoard::ukazHmat(int bas, StavBasu smer) {
    zmen(bas, {oznacen(bas), false}, smer);
}

void BassBoard::odeberHmat() {
    for (int bas = 1; bas <= nastroj_.pocetBasu(); ++bas)
        zmen(bas, {oznacen(bas), false}, StavBasu::Volny);
}

void BassBoard::klik(int bas) {
    nastavZnacku(bas, !oznacen(bas));
}

void BassBoard::uvolniBasy() {
    for (int bas = 1; bas <= nastroj_.pocetBasu(); ++bas)
        zmen(bas, {}, StavBasu::Volny);
}

void BassBoard::zmen(int bas, const Znacka& znacka, StavBasu hmat) {
    const StavBasu videny = stav(bas);
    const bool byl = oznacen(bas);
    znacky_.basy.at(static_cast<std::size_t>(bas)) = znacka;
    hmat_.at(static_cast<std::size_t>(bas)) = hmat;
    if (oznacen(bas) != byl || stav(bas) != videny) Q_EMIT basZmenen(bas);
}

} // namespace zvonika
