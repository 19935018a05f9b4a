#include "board/BassBoard.h"

namespace zvonika {

ObrazBasu obrazBasu(int bas) {
    if (bas == 30) return ObrazBasu::C;
    return bas == 26 || bas == 34 ? ObrazBasu::Mriz : ObrazBasu::Bezny;
}

BassBoard::BassBoard(QObject* parent) : QObject(parent) {}

bool BassBoard::oznacen(int bas) const {
    return basy_.at(static_cast<std::size_t>(bas)).oznacen;
}

void BassBoard::nastavZnacku(int bas, bool oznacen) {
    bool& znacka = basy_.at(static_cast<std::size_t>(bas)).oznacen;
    if (znacka == oznacen) return;
    znacka = oznacen;
    Q_EMIT basZmenen(bas);
}

StavBasu BassBoard::stav(int bas) const {
    return basy_.at(static_cast<std::size_t>(bas)).stav;
}

void BassBoard::ukaz(int bas, StavBasu stav) {
    StavBasu& ukazany = basy_.at(static_cast<std::size_t>(bas)).stav;
    if (ukazany == stav) return;
    ukazany = stav;
    Q_EMIT basZmenen(bas);
}

void BassBoard::klik(int bas) {
    const bool oznacit = !oznacen(bas);
    nastavZnacku(bas, oznacit);
    ukaz(bas, oznacit ? StavBasu::Cerveny : StavBasu::Volny);
}

void BassBoard::uvolniBasy() {
    for (int bas = 1; bas <= pocetBasu; ++bas) {
        nastavZnacku(bas, false);
        ukaz(bas, StavBasu::Volny);
    }
}

} // namespace zvonika
