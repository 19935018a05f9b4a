#include "playing/recording/ZapisHmatu.h"

#include "platform/Contact.h"
#include "playing/undo/ZapisRadku.h"
#include "theory/NazvyTonu.h"

namespace zvonika {

QString OkoliZapisu::toninaRadku() const {
    // The button's idle caption is "Vyberte tóninu": a row recorded without a key says so.
    const QString& cmdStupnice = tonina.stupnice().text();
    return cmdStupnice == QStringLiteral("Vyberte stupnici") ? QString() : cmdStupnice;
}

void ZapisHmatu::cmdTah() {
    mechTlak_ = false;
    ZapisHmat();
}

void ZapisHmatu::cmdTlak() {
    mechTlak_ = true;
    ZapisHmat();
}

void ZapisHmatu::ZapisHmat() {
    SongSheet list(okoli_.pisen);
    const int radek = list.zacniZapis();
    ZapisRadku zapis(okoli_.pisen, okoli_.kroky, radek);
    Grip hmat;
    zapisTony(list, radek, hmat);
    okoli_.basy.ZapisBasy(list, radek, hmat);
    if (hmat.prazdny()) { // it only empties its row
        okoli_.poZapisu.vyprazdneno(radek, zapis.dokonci(popisSmazani(radek)));
        return;
    }

    hmat.smer = textSmeru(mechTlak_ ? SmerMechu::Tlak : SmerMechu::Tah);
    hmat.prstoklad = okoli_.prstoklad.prstoklad(diskant_.oznacene());
    list.zapis(radek, hmat, {CastHmatu::Smer, CastHmatu::Prstoklad});
    okoli_.prstoklad.odeber();
    zapis.dokonci(popisZapisu(radek));
    list.vyberRadek(radek);
    okoli_.poZapisu.naDalsiRadek();
    okoli_.poZapisu.zapocitejHmat();
    okoli_.poZapisu.obnovOkno();
    okoli_.poZapisu.oznamZapis(radek, smerMechu(hmat.smer));
}

void ZapisHmatu::zapisTony(SongSheet& list, int radek, Grip& hmat) {
    bool prebyva = false;
    hmat.tony = oznaceneTony(prebyva);
    hmat.tonina = okoli_.toninaRadku();
    list.zapis(radek, hmat, {CastHmatu::Tony, CastHmatu::Tonina});
    if (prebyva) ohlasPrebytek();
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
