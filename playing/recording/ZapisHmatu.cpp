#include "playing/recording/ZapisHmatu.h"

#include "platform/Contact.h"
#include "theory/NazvyTonu.h"

namespace zvonika {

void ZapisHmatu::cmdTah() {
    mechTlak_ = false;
    ZapisHmat();
}

void ZapisHmatu::cmdTlak() {
    mechTlak_ = true;
    ZapisHmat();
}

void ZapisHmatu::ZapisHmat() {
    RadekZapisu radek(okoli_.pisen);
    const bool tony = zapisTony(radek);
    const bool basy = okoli_.basy.ZapisBasy(radek);
    if (!tony && !basy) return; // an empty grip only empties its row

    radek.zapisSmer(mechTlak_ ? SmerMechu::Tlak : SmerMechu::Tah);
    radek.zapisPrstoklad(okoli_.prstoklad.prstoklad());
    okoli_.prstoklad.odeber();
    radek.vyberBunkuB();
    okoli_.poZapisu.naDalsiRadek();
    okoli_.poZapisu.zapocitejHmat();
    okoli_.poZapisu.obnovOkno();
}

bool ZapisHmatu::zapisTony(RadekZapisu& radek) {
    bool prebyva = false;
    const QStringList tony = oznaceneTony(prebyva);
    radek.zapisTony(tony);
    radek.zapisToninu(okoli_.tonina.stupnice().text());
    if (prebyva) ohlasPrebytek();
    return !tony.isEmpty();
}

QStringList ZapisHmatu::oznaceneTony(bool& prebyva) {
    QStringList tony;
    for (const int n : diskant_.oznacene()) {
        prebyva = tony.size() == maxTonu;
        if (prebyva) break;
        tony.append(nazevTonu(CisloTonu(n), okoli_.tonina.stupnice()).nazev.text());
    }
    return tony;
}

void ZapisHmatu::ohlasPrebytek() {
    okoli_.dialogs.message(
        {QStringLiteral("Diagnóza mnohoprstost."),
         QStringLiteral(
             "Páč asi nemáte více než sedm prstů na pravé ruce, program se Vám na zápis dalších knoflíků "
             "se vší úctou u tohoto hmatu vykašle. Sťěžovat si můžete u ") +
             kontakt,
         Icon::Critical});
}

} // namespace zvonika
