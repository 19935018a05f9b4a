#include "playing/recording/ZapisHmatuZNot.h"

#include "platform/Contact.h"
#include "playing/undo/ZapisRadku.h"
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
    SongSheet list(okoli_.pisen);
    const int radek = list.zacniZapis();
    const QString nezapsane = vetaONevejitych();
    ZapisRadku zapis(okoli_.pisen, okoli_.kroky, radek);
    Grip hmat;
    if (!zapisTony(list, radek, hmat)) return;

    hmat.prstoklad = okoli_.prstoklad.prstoklad(tonyOsnovy());
    list.zapis(radek, hmat, {CastHmatu::Prstoklad});
    okoli_.prstoklad.odeber();
    hmat.smer = textSmeru(smer);
    list.zapis(radek, hmat, {CastHmatu::Smer});
    SeradTonyHmatu(list, radek);
    okoli_.basy.ZapisBasy(list, radek, hmat);
    const bool smazan = zapis.dokonci(popisZapisu(radek)) && hmat.prazdny();
    list.vyberRadek(radek);
    okoli_.poZapisu.naDalsiRadek();
    okoli_.poZapisu.obnovOkno();
    okoli_.poZapisu.oznamZapis(radek, smer, smazan);
    okoli_.poZapisu.upozorni(nezapsane);
}

std::vector<int> ZapisHmatuZNot::tonyOsnovy() const {
    std::vector<int> tony;
    for (const auto& nota : osnova_.noty())
        if (nota) tony.push_back(nota->ton.hodnota());
    return tony;
}

/// What is recorded here are the notes; a sixth marked button has none.
QString ZapisHmatuZNot::vetaONevejitych() const {
    if (osnova_.volnySlot()) return {};
    QStringList tony;
    for (const int n : diskant_.oznacene())
        if (!osnova_.slotTonu(CisloTonu(n)))
            tony << nazevTonu(CisloTonu(n), okoli_.tonina.stupnice()).nazev.bezCarky();
    if (tony.isEmpty()) return {};
    return QStringLiteral("Osnova má jen pět not, nezapsáno: %1. Celý hmat zapíše z hmatníku F7 nebo F8.")
        .arg(tony.join(QStringLiteral(", ")));
}

bool ZapisHmatuZNot::zapisTony(SongSheet& list, int radek, Grip& hmat) {
    bool platne = true;
    for (int slot = 0; slot < NotovaOsnova::pocetNot && platne; ++slot)
        if (osnova_.nota(slot)) platne = pridejTon(hmat.tony, slot);
    hmat.tonina = okoli_.toninaRadku();
    list.zapis(radek, hmat, {CastHmatu::Tony, CastHmatu::Tonina});
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

void ZapisHmatuZNot::SeradTonyHmatu(SongSheet& list, int radek) {
    QStringList tony = list.tonyDoMezery(radek);
    const auto niz = [](const QString& a, const QString& b) {
        return cisloTonu(ToneName(a)) < cisloTonu(ToneName(b));
    };
    std::stable_sort(tony.begin(), tony.end(), niz);
    tony.removeIf([](const QString& ton) { return cisloTonu(ToneName(ton)) == CisloTonu::neznamy(); });
    list.prepisTony(radek, tony);
}

} // namespace zvonika
