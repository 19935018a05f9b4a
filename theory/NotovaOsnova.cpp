#include "theory/NotovaOsnova.h"

#include "theory/TonNaOsnove.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

template <typename Podminka>
std::optional<int> prvniSlot(const NotovaOsnova::Noty& noty, Podminka podminka) {
    const auto nalezena = std::find_if(noty.begin(), noty.end(), podminka);
    return nalezena == noty.end() ? std::nullopt : std::optional(static_cast<int>(nalezena - noty.begin()));
}

auto zniJako(CisloTonu ton) {
    return [ton](const auto& nota) { return nota && nota->ton == ton; };
}

} // namespace

NotovaOsnova::NotovaOsnova(QObject* parent) : QObject(parent) {}

std::optional<int> NotovaOsnova::volnySlot() const {
    return prvniSlot(noty_, [](const auto& nota) { return !nota; });
}

std::optional<int> NotovaOsnova::slotTonu(CisloTonu ton) const {
    return prvniSlot(noty_, zniJako(ton));
}

bool NotovaOsnova::odrazka(int i) const {
    return std::any_of(noty_.begin(), noty_.end(), [&](const auto& nota) {
        return nota && nota->poloha.znamenko == Znamenko::Odrazka &&
               predznamenani_.znamenkoStupne(nota->poloha.jednotky) == i;
    });
}

void NotovaOsnova::polozNotu(int slot, const NotaOsnovy& nota) {
    Noty noty = noty_;
    noty.at(static_cast<std::size_t>(slot)) = nota;
    nastavNoty(noty);
}

void NotovaOsnova::odeberNotu(int slot) {
    Noty noty = noty_;
    noty.at(static_cast<std::size_t>(slot)).reset();
    nastavNoty(noty);
}

void NotovaOsnova::vyberSlot(std::optional<int> slot) {
    if (slot && !nota(*slot)) slot.reset();
    if (slot == vybrany_) return;
    vybrany_ = slot;
    Q_EMIT changed();
}

void NotovaOsnova::nastavStupnici(const Key& stupnice, const Noty& noty) {
    if (stupnice == stupnice_ && noty == noty_) return;
    stupnice_ = stupnice;
    predznamenani_ = Predznamenani(stupnice);
    noty_ = noty;
    Q_EMIT changed();
}

void NotovaOsnova::odeberNoty() {
    nastavNoty({});
}

void NotovaOsnova::odeberPultony() {
    odeberZnamenka([](Znamenko z) { return z == Znamenko::Krizek || z == Znamenko::Becko; });
}

void NotovaOsnova::odeberOdrazky() {
    odeberZnamenka([](Znamenko z) { return z == Znamenko::Odrazka; });
}

template <typename Podminka>
void NotovaOsnova::odeberZnamenka(Podminka podminka) {
    Noty noty = noty_;
    Noty bezZnamenek;
    for (std::size_t slot = 0; slot < noty.size(); ++slot) {
        if (noty[slot] && podminka(noty[slot]->poloha.znamenko)) std::swap(noty[slot], bezZnamenek[slot]);
    }
    for (std::size_t slot = 0; slot < noty.size(); ++slot) {
        auto& nota = bezZnamenek[slot];
        if (!nota) continue;
        nota->poloha.znamenko = Znamenko::Zadne;
        nota->ton = tonNaOsnove(nota->poloha, predznamenani_);
        if (nota->ton.jeVRozsahu() && !prvniSlot(noty, zniJako(nota->ton))) noty[slot] = nota;
    }
    nastavNoty(noty);
}

void NotovaOsnova::nastavNoty(const Noty& noty) {
    if (noty == noty_) return;
    noty_ = noty;
    if (vybrany_ && !nota(*vybrany_)) vybrany_.reset();
    Q_EMIT changed();
}

} // namespace zvonika
