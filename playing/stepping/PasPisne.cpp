#include "playing/stepping/PasPisne.h"

namespace zvonika {

namespace {

bool vPasu(int pozice) {
    return pozice >= 1 && pozice <= delkaPasu;
}

} // namespace

void PasPisne::ZobrazPas() {
    pas_.prvniRadekPasu = list_.aktualniRadek();
    pas_.poziceVPasu = 1;
    nacti();
}

void PasPisne::posun(int oKolik) {
    if (!vPasu(pas_.poziceVPasu + oKolik)) {
        ZobrazPas();
        return;
    }
    pas_.poziceVPasu += oKolik;
    pas_.oznamPosun();
}

void PasPisne::obnov() {
    const int pozice = list_.aktualniRadek() - pas_.prvniRadekPasu + 1;
    if (!pas_.viditelny || !vPasu(pozice)) {
        ZobrazPas();
        return;
    }
    pas_.poziceVPasu = pozice;
    nacti();
}

void PasPisne::vyprazdni() {
    pas_.pozice = {};
    pas_.poziceVPasu = 1;
    pas_.prvniRadekPasu = 1;
    pas_.viditelny = false;
    pas_.oznamZmenu();
}

void PasPisne::nacti() {
    const QVector<Grip> hmaty = list_.gripy(pas_.prvniRadekPasu, delkaPasu);
    bool kresliNoty = true;
    for (int i = 0; i < delkaPasu; ++i) {
        const Grip& hmat = hmaty.at(i);
        kresliNoty = kresliNoty && !hmat.prazdny();
        auto& pozice = pas_.pozice.at(static_cast<std::size_t>(i));
        pozice = {hmat.slabika, kresliNoty ? hmat.tony : QStringList(),
                  kresliNoty ? smerMechu(hmat.smer) : SmerMechu::Neuveden};
    }
    pas_.viditelny = true;
    pas_.oznamZmenu();
}

} // namespace zvonika
