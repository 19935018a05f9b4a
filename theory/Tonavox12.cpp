#include "theory/Tonavox12.h"

#include "theory/NazvyTonu.h"
#include "theory/Toniny.h"

namespace zvonika {

void Tonavox12::DejTon(CisloTonu cislo) {
    mimoStupnici_ = false;
    ton_ = zvonika::nazevTonu(cislo);
}

void Tonavox12::DejTonVeStupnici(CisloTonu cislo, QString& stupnice) {
    stupnice = normalizujStupnici(stupnice);
    const PojmenovanyTon pojmenovany = zvonika::nazevTonu(cislo, Key(stupnice));
    mimoStupnici_ = pojmenovany.mimoStupnici;
    ton_ = pojmenovany.nazev;
}

void Tonavox12::DejCisloTonu(const ToneName& nazev) {
    ton_ = zvonika::cisloTonu(nazev);
}

ToneName Tonavox12::nazevTonu() const {
    const auto* nazev = std::get_if<ToneName>(&ton_);
    return nazev ? *nazev : ToneName();
}

CisloTonu Tonavox12::cisloTonu() const {
    const auto* cislo = std::get_if<CisloTonu>(&ton_);
    return cislo ? *cislo : CisloTonu::neznamy();
}

} // namespace zvonika
