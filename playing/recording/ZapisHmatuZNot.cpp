#include "playing/recording/ZapisHmatuZNot.h"

#include "platform/Contact.h"
#include "theory/NazvyTonu.h"
#include "theory/clsNotyZapis.h"

#include <algorithm>

namespace zvonika {

namespace {

Message neplatnaNota() {
    return {
        QStringLiteral("Chyba programu"),
        QStringLiteral("Nota není platná pro zvoniku. Nebude zapsána a procedura bude předčasně ukončena. "
                       "Upozorněte prosím na tuto chybu autora programu."),
        Icon::Critical};
}

Message prilisMnohoNot() {
    return {QStringLiteral("Diagnóza mnohoprstost."),
            QStringLiteral("Příliš mnoho zapsaných not. Sťěžovat si můžete u ") + kontakt, Icon::Critical};
}

} // namespace

void ZapisHmatuZNot::ZapisHmatZNot(SmerMechu smer) {
    RadekZapisu radek(okoli_.pisen);
    if (!zapisTony(radek)) return;

    radek.zapisPrstoklad(okoli_.prstoklad.prstoklad());
    okoli_.prstoklad.odeber();
    radek.zapisSmer(smer);
    SeradTonyHmatu(radek);
    okoli_.basy.ZapisBasy(radek);
    radek.vyberBunkuB();
    okoli_.poZapisu.naDalsiRadek();
    okoli_.poZapisu.obnovOkno();
}

bool ZapisHmatuZNot::zapisTony(RadekZapisu& radek) {
    QStringList tony;
    bool platne = true;
    for (int slot = 0; slot < NotovaOsnova::pocetNot && platne; ++slot)
        if (osnova_.nota(slot)) platne = pridejTon(tony, slot);
    radek.zapisTony(tony);
    radek.zapisToninu(okoli_.tonina.stupnice().text());
    if (!platne) okoli_.dialogs.message(neplatnaNota());
    return platne;
}

bool ZapisHmatuZNot::pridejTon(QStringList& tony, int slot) {
    const ToneName ton = noty_.ZjistiNotu(slot);
    if (ton.jePrazdny() || ton == ToneName::nenalezeno()) return false;
    if (tony.size() < maxTonu)
        tony.append(ton.text());
    else
        okoli_.dialogs.message(prilisMnohoNot());
    return true;
}

void ZapisHmatuZNot::SeradTonyHmatu(RadekZapisu& radek) {
    QStringList tony = radek.tony();
    const auto niz = [](const QString& a, const QString& b) {
        return cisloTonu(ToneName(a)) < cisloTonu(ToneName(b));
    };
    std::stable_sort(tony.begin(), tony.end(), niz);
    tony.removeIf([](const QString& ton) { return cisloTonu(ToneName(ton)) == CisloTonu::neznamy(); });
    radek.prepisTony(tony);
}

} // namespace zvonika
