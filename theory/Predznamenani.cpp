#include "theory/Predznamenani.h"

#include "theory/Toniny.h"

#include <array>
#include <cstdlib>

namespace zvonika {

namespace {

using Polohy = std::array<int, Predznamenani::nejviceZnamenek>;

constexpr Polohy krizky{1020, 840, 1080, 900, 720, 960, 780}; // f2 c2 g2 d2 a1 e2 h1
constexpr Polohy becka{780, 960, 720, 900, 660, 840, 600};    // h1 e2 a1 d2 g1 c2 f1

} // namespace

Predznamenani::Predznamenani(const Key& stupnice) {
    if (const DurovaTonina* tonina = najdiToninu(stupnice)) krizky_ = tonina->predznamenani;
}

Znamenko Predznamenani::druh() const {
    if (krizky_ == 0) return Znamenko::Zadne;
    return krizky_ > 0 ? Znamenko::Krizek : Znamenko::Becko;
}

int Predznamenani::pocet() const {
    return std::abs(krizky_);
}

int Predznamenani::jednotky(int i) const {
    return (krizky_ > 0 ? krizky : becka).at(static_cast<std::size_t>(i));
}

int Predznamenani::znamenkoStupne(int jednotky) const {
    for (int i = 0; i < pocet(); ++i) {
        if ((this->jednotky(i) - jednotky) % PolohaNoty::jednotekNaOktavu == 0) return i;
    }
    return -1;
}

Znamenko Predznamenani::proPolohu(int jednotky) const {
    return znamenkoStupne(jednotky) < 0 ? Znamenko::Zadne : druh();
}

} // namespace zvonika
