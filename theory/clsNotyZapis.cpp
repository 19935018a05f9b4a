#include "theory/clsNotyZapis.h"

#include "theory/NazvyTonu.h"
#include "theory/TonNaOsnove.h"

namespace zvonika {

namespace {

PolohaNoty sOdrazkouProtiPredznamenani(PolohaNoty poloha, const Predznamenani& predznamenani) {
    if (poloha.znamenko == Znamenko::Zadne && predznamenani.znamenkoStupne(poloha.jednotky) >= 0)
        poloha.znamenko = Znamenko::Odrazka;
    return poloha;
}

} // namespace

clsNotyZapis::clsNotyZapis(NotovaOsnova& osnova, Dialogs& dialogs) : osnova_(osnova), noty_(dialogs) {}

void clsNotyZapis::NastavStupnici(const Key& stupnice) {
    NotovaOsnova::Noty noty = osnova_.noty();
    for (auto& nota : noty) {
        if (!nota) continue;
        if (const auto poloha = polohaTonu(nota->ton, stupnice))
            nota->poloha = sOdrazkouProtiPredznamenani(*poloha, Predznamenani(stupnice));
    }
    osnova_.nastavStupnici(stupnice, noty);
}

ToneName clsNotyZapis::ZjistiNotu(int slot) const {
    const auto& nota = osnova_.nota(slot);
    return nota && nota->ton.jeVRozsahu() ? nazevTonu(nota->ton, osnova_.stupnice()).nazev : ToneName();
}

ToneName clsNotyZapis::ctenyNazev(int slot) const {
    const auto& nota = osnova_.nota(slot);
    return nota ? nazevNaOsnove(nota->poloha, osnova_.predznamenani()) : ToneName();
}

bool clsNotyZapis::CervenaNota(int slot) const {
    const auto& nota = osnova_.nota(slot);
    return nota && nazevTonu(nota->ton, osnova_.stupnice()).mimoStupnici;
}

std::optional<int> clsNotyZapis::pridejNotu(int jednotky) {
    const auto slot = osnova_.volnySlot();
    const auto nota = prectiNotu({Znamenko::Zadne, PolohaNoty::zaokrouhli(jednotky)});
    if (!slot || !nota || osnova_.slotTonu(nota->ton)) return std::nullopt;
    osnova_.polozNotu(*slot, *nota);
    osnova_.vyberSlot(slot);
    return slot;
}

bool clsNotyZapis::posunNotu(int slot, int jednotky) {
    const auto& nota = osnova_.nota(slot);
    if (!nota) return false;
    PolohaNoty poloha{nota->poloha.znamenko, PolohaNoty::zaokrouhli(jednotky)};
    if (poloha.znamenko == Znamenko::Odrazka && osnova_.predznamenani().znamenkoStupne(poloha.jednotky) < 0)
        poloha.znamenko = Znamenko::Zadne;
    return zmenNotu(slot, poloha);
}

bool clsNotyZapis::nastavZnamenko(int slot, Znamenko znamenko) {
    const auto& nota = osnova_.nota(slot);
    return nota && zmenNotu(slot, {znamenko, nota->poloha.jednotky});
}

void clsNotyZapis::odeberNotu(int slot) {
    osnova_.odeberNotu(slot);
}

std::optional<int> clsNotyZapis::zakresliNotu(const KreslenaNota& nota) {
    if (const auto slot = osnova_.slotTonu(nota.ton)) return slot;
    const auto slot = osnova_.volnySlot();
    if (!slot) return std::nullopt;
    PolohaNoty poloha = sOdrazkouProtiPredznamenani(nota.poloha, osnova_.predznamenani());
    if (nota.sOdrazkou) poloha.znamenko = Znamenko::Odrazka;
    osnova_.polozNotu(*slot, {poloha, nota.ton});
    return slot;
}

void clsNotyZapis::odeberTon(CisloTonu ton) {
    if (const auto slot = osnova_.slotTonu(ton)) osnova_.odeberNotu(*slot);
}

std::optional<OdlozenaNota> clsNotyZapis::misto(CisloTonu ton) const {
    const auto slot = osnova_.slotTonu(ton);
    if (!slot) return std::nullopt;
    return OdlozenaNota{*slot, *osnova_.nota(*slot), osnova_.vybranySlot() == slot};
}

void clsNotyZapis::vrat(const OdlozenaNota& misto) {
    if (osnova_.nota(misto.slot) || osnova_.slotTonu(misto.nota.ton)) return;
    osnova_.polozNotu(misto.slot, misto.nota);
    if (misto.vybrana) osnova_.vyberSlot(misto.slot);
}

std::optional<NotaOsnovy> clsNotyZapis::prectiNotu(const PolohaNoty& poloha) const {
    const CisloTonu ton = tonNaOsnove(poloha, osnova_.predznamenani());
    return ton.jeVRozsahu() ? std::optional(NotaOsnovy{poloha, ton}) : std::nullopt;
}

bool clsNotyZapis::zmenNotu(int slot, const PolohaNoty& poloha) {
    const auto nota = prectiNotu(poloha);
    if (!nota || osnova_.slotTonu(nota->ton).value_or(slot) != slot) return false;
    osnova_.polozNotu(slot, *nota);
    return true;
}

std::optional<PolohaNoty> clsNotyZapis::polohaTonu(CisloTonu ton, const Key& stupnice) const {
    if (!ton.jeVRozsahu()) return std::nullopt;
    return PolohaNoty::zTextu(noty_.UrciPolohuNoty(nazevTonu(ton, stupnice).nazev));
}

} // namespace zvonika
