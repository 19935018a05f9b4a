#include "app/UdalostiOkna.h"

#include "app/Modely.h"
#include "playing/stepping/StavovyRadek.h"
#include "song/RadaPoChybe.h"

#include <utility>

namespace zvonika {

namespace {

bool neniCoZapsat(const Modely& modely) {
    return modely.diskant.oznacene().empty() && modely.basy.oznacene().empty() &&
           modely.zapisovaciOsnova.volnySlot() == 0;
}

} // namespace

bool UdalostiOkna::proved(const std::function<void()>& procedura) {
    if (bezi()) return false;
    if (!std::exchange(modely_.panel.vystraha, {}).isEmpty())
        modely_.panel.oznamZmenu(); // before the next one asks anything
    modely_.panel.zapsano.clear();
    return nasleduj(procedura);
}

bool UdalostiOkna::nasleduj(const std::function<void()>& procedura) {
    if (bezi()) return false;
    modely_.panel.upozorneni.clear();
    const bool provedeno = obsluha_.proved(procedura);
    ukazStav();
    return provedeno;
}

void UdalostiOkna::ukazPricinu(const RuntimeError& chyba) {
    modely_.panel.vystraha = radaPoChybe(modely_.pisen, chyba);
    modely_.panel.oznamZmenu();
}

void UdalostiOkna::ukazStav() {
    obnova_();
    StavProgramu stav;
    stav.pisenOtevrena = modely_.pisen.otevrena();
    stav.automatBezi = modely_.timer1.zapnuty();
    stav.stupnice = modely_.tonina.stupnice().text();
    stav.neniCoZapsat = neniCoZapsat(modely_);
    stav.radekPrazdny = modely_.panel.lblTony.isEmpty() && modely_.panel.lblBasy.isEmpty();
    stav.upozorneni = modely_.panel.upozorneni;
    stav.zapsano = modely_.panel.zapsano;
    modely_.panel.stav = stavovyRadek(stav);
    modely_.panel.nezajisteno =
        modely_.pisen.aplikaceExcel ? modely_.pisen.aplikaceExcel->trouble() : QString();
    modely_.panel.oznamZmenu();
}

} // namespace zvonika
