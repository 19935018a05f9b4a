#include "playing/song/UkonceniExcelu.h"

#include "platform/Hlaseni.h"

namespace zvonika {

namespace {

// An application that is gone for good fails at every attempt; the program must end nevertheless.
constexpr int pokusuOUkonceni = 3;

QString textUkonceni(int cislo) {
    if (cislo == error::objectNotSet)
        return QStringLiteral("Nezavírejte příště prosím Excel ručně !\nAplikace si ho ovládá sama.");
    return QStringLiteral("Chyba při ukládání souboru !\nData v písni mohou být ztracena.");
}

} // namespace

void UkonceniExcelu::UkonciExcel() {
    if (!pisen_.aplikaceExcel) return;
    ohlasene_.clear();
    pokus(Krok::Ulozeni, [this] { ulozPisen(); });
    bool hotovo = false;
    for (int i = 0; i < pokusuOUkonceni && !hotovo; ++i)
        hotovo = ukonciAVratCestu();
    pisen_.aplikaceExcel.reset();
}

bool UkonceniExcelu::pokus(Krok krok, const std::function<void()>& provedeni) {
    try {
        provedeni();
        return true;
    } catch (const std::exception& vyjimka) {
        const int cislo = chybaSCislem(vyjimka).number();
        if (ohlasene_.insert({krok, cislo}).second) ohlas(cislo);
        return false;
    }
}

void UkonceniExcelu::ulozPisen() {
    if (pisen_.AktivujPisen()) pisen_.ulozAktivni();
}

// The folder is given back after quitting, not before: quitting would store the program's own folder.
bool UkonceniExcelu::ukonciAVratCestu() {
    return pokus(Krok::Ukonceni, [this] { pisen_.excel().quit(); }) && pokus(Krok::VraceniCesty, [this] {
               pisen_.excel().setDefaultFilePath(pisen_.puvodniCestaExcelu);
           });
}

void UkonceniExcelu::ohlas(int cislo) const {
    if (cislo == error::objectNotSet || cislo == error::applicationDefined)
        dialogs_.message({QStringLiteral("Nestandardní ukončení."), textUkonceni(cislo), Icon::Exclamation});
    else
        dialogs_.message(neocekavanaChyba(cislo));
}

} // namespace zvonika
