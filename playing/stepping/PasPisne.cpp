#include "playing/stepping/PasPisne.h"

namespace zvonika {

namespace {

bool vPasu(int pozice) {
    return pozice >= 1 && pozice <= delkaPasu;
}

} // namespace

VyrezPisne PasPisne::ctiOdKurzoru() const {
    const int radek = list_.aktualniRadek();
    return cti(radek, radek);
}

VyrezPisne PasPisne::ctiPoPosunu(int oKolik) const {
    return vPasu(pas_.poziceVPasu + oKolik) ? list_.kolemKurzoru() : ctiOdKurzoru();
}

VyrezPisne PasPisne::ctiPoZmene() const {
    const int radek = list_.aktualniRadek();
    return cti(radek, maRadek(radek) ? pas_.prvniRadekPasu : radek);
}

VyrezPisne PasPisne::cti(int radek, int prvniRadekPasu) const {
    return list_.kolem(radek, prvniRadekPasu, prvniRadekPasu + delkaPasu - 1);
}

bool PasPisne::maRadek(int radek) const {
    return pas_.viditelny && vPasu(radek - pas_.prvniRadekPasu + 1);
}

void PasPisne::ZobrazPas(const VyrezPisne& vyrez) {
    pas_.prvniRadekPasu = vyrez.radek;
    pas_.poziceVPasu = 1;
    napln(vyrez);
}

void PasPisne::posun(int oKolik, const VyrezPisne& vyrez) {
    if (!vPasu(pas_.poziceVPasu + oKolik)) {
        ZobrazPas(vyrez);
        return;
    }
    pas_.poziceVPasu += oKolik;
    pas_.oznamPosun();
}

void PasPisne::obnov(const VyrezPisne& vyrez) {
    if (!maRadek(vyrez.radek)) {
        ZobrazPas(vyrez);
        return;
    }
    pas_.poziceVPasu = vyrez.radek - pas_.prvniRadekPasu + 1;
    napln(vyrez);
}

void PasPisne::vyprazdni() {
    pas_.pozice = {};
    pas_.poziceVPasu = 1;
    pas_.prvniRadekPasu = 1;
    pas_.viditelny = false;
    pas_.oznamZmenu();
}

void PasPisne::napln(const VyrezPisne& vyrez) {
    bool kresliNoty = true;
    for (int i = 0; i < delkaPasu; ++i) {
        const Grip hmat = vyrez.hmat(pas_.prvniRadekPasu + i);
        kresliNoty = kresliNoty && !hmat.prazdny();
        auto& pozice = pas_.pozice.at(static_cast<std::size_t>(i));
        pozice = {hmat.slabika, kresliNoty ? hmat.tony : QStringList(),
                  kresliNoty ? smerMechu(hmat.smer) : SmerMechu::Neuveden};
    }
    pas_.viditelny = true;
    pas_.oznamZmenu();
}

} // namespace zvonika
