#include "playing/undo/SeznamKroku.h"

#include <iterator>
#include <utility>

namespace zvonika {

void SeznamKroku::pridej(KrokSeznamu krok) {
    vracene_.clear();
    if (provedene_.size() == nejvice) provedene_.erase(provedene_.begin());
    provedene_.push_back(std::move(krok));
}

const KrokSeznamu* SeznamKroku::dalsi(SmerKroku smer) const {
    const Kroky& kroky = smer == SmerKroku::Zpet ? provedene_ : vracene_;
    return kroky.empty() ? nullptr : &kroky.back();
}

QString SeznamKroku::popis(SmerKroku smer) const {
    const KrokSeznamu* krok = dalsi(smer);
    return krok ? krok->krok.label : QString();
}

void SeznamKroku::proveden(SmerKroku smer, std::size_t casti) {
    Kroky& kroky = odkud(smer);
    if (casti == 0) return;
    auto& vse = kroky.back().krok.parts;
    const auto pocet = static_cast<std::ptrdiff_t>(casti);
    const auto od = smer == SmerKroku::Zpet ? vse.end() - pocet : vse.begin();
    KrokSeznamu hotove{{kroky.back().krok.label, {}}, kroky.back().hrace};
    hotove.krok.parts.assign(std::make_move_iterator(od), std::make_move_iterator(od + pocet));
    vse.erase(od, od + pocet);
    if (vse.empty()) kroky.pop_back();
    kam(smer).push_back(std::move(hotove));
}

void SeznamKroku::zahod(SmerKroku smer) {
    if (!odkud(smer).empty()) odkud(smer).pop_back();
}

} // namespace zvonika
