#include "playing/recording/ZapisBasu.h"

#include "platform/Contact.h"

namespace zvonika {

void ZapisBasu::ZapisBasy(SongSheet& list, int radek, Grip& hmat) {
    const Jmena jmena = jmenaOznacenych();
    hmat.basy = jmena.basy;
    list.zapis(radek, hmat, {CastHmatu::Basy});
    if (jmena.prebyva) ohlasPrebytek();
    if (jmena.nekteryBezeJmena) ohlasTabulku();
}

ZapisBasu::Jmena ZapisBasu::jmenaOznacenych() {
    Jmena jmena;
    const std::vector<int> oznacene = basy_.oznacene();
    if (!oznacene.empty()) tabulka_.nacti(); // afresh each time, so that a repaired table counts at once
    for (const int bas : oznacene)
        if (!jmena.prebyva) pridej(jmena, tabulka_.nazev(bas));
    return jmena;
}

void ZapisBasu::pridej(Jmena& jmena, const QString& nazev) {
    if (jmena.basy.size() == maxBasu)
        jmena.prebyva = true;
    else if (nazev.isEmpty())
        jmena.nekteryBezeJmena = true;
    else
        jmena.basy.append(nazev);
}

void ZapisBasu::ohlasPrebytek() {
    dialogs_.message(
        {QStringLiteral("Sdělení pro mutanty."),
         QStringLiteral("Na levé ruce máte zřejmě více než sedm prstů. Gratulujeme, ale program jich "
                        "umí zapsat právě sedm, a tak zbylé basy u tohoto hmatu se vší úctou přehlédne. "
                        "Sťěžovat si můžete u ") +
             kontakt,
         Icon::Critical});
}

void ZapisBasu::ohlasTabulku() {
    dialogs_.message(
        {QStringLiteral("Bas nebyl zapsán !"),
         tabulka_.chyba() + QStringLiteral("\nOznačené basy, jejichž jméno tabulka neuvádí, nebyly "
                                           "zapsány. Ostatní data o hmatu zůstanou zachována."),
         Icon::Critical});
}

} // namespace zvonika
