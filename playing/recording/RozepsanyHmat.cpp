#include "playing/recording/RozepsanyHmat.h"

#include "theory/clsNotyZapis.h"

namespace zvonika {

RozepsanyHmat odecti(const ModelyHmatu& modely) {
    return {modely.diskant.znacky(), modely.basy.znacky(), modely.osnova.stupnice(), modely.osnova.noty(),
            modely.prstoklad.prstoklad()};
}

void ukaz(const ModelyHmatu& modely, const RozepsanyHmat& hmat) {
    const Key stupnice = modely.osnova.stupnice();
    modely.diskant.ukazZnacky(hmat.diskant);
    modely.basy.ukazZnacky(hmat.basy);
    modely.osnova.nastavStupnici(hmat.stupnice, hmat.noty);
    modely.osnova.vyberSlot(modely.osnova.vybranySlot()); // no slot without a note is selected
    modely.prstoklad.nastav(hmat.prstoklad);
    if (stupnice == hmat.stupnice) return;
    modely.noty.NastavStupnici(stupnice);
    modely.diskant.prejmenujKlavesy(stupnice.text());
}

} // namespace zvonika
