#pragma once

#include "spreadsheet/StepKeeper.h"

#include <cstddef>

namespace zvonika {

/// Which way a step is carried out: taken back, or done again.
enum class SmerKroku { Zpet, Znovu };

/// A step of the list, and who has made it.
struct KrokSeznamu {
    WorkStep krok;
    bool hrace = false; ///< the player himself, in the sheet's window
};

/// The steps of one song, those that can be taken back and those that can be done again. A new step forgets
/// the latter; of the former the last `nejvice` are kept.
class SeznamKroku {
public:
    static constexpr std::size_t nejvice = 1000;

    void pridej(KrokSeznamu krok);
    bool prazdny() const { return provedene_.empty() && vracene_.empty(); }
    /// The step that comes next that way; nullptr where there is none.
    const KrokSeznamu* dalsi(SmerKroku smer) const;
    QString popis(SmerKroku smer) const; ///< its label; "" where there is none
    /// So many parts of the step that came next that way have been carried out, from its end backwards where
    /// it is taken back: they can now go the other way. The rest stays where it was.
    void proveden(SmerKroku smer, std::size_t casti);
    /// The step that comes next that way cannot be carried out any more.
    void zahod(SmerKroku smer);

private:
    using Kroky = std::vector<KrokSeznamu>;
    Kroky& odkud(SmerKroku smer) { return smer == SmerKroku::Zpet ? provedene_ : vracene_; }
    Kroky& kam(SmerKroku smer) { return smer == SmerKroku::Zpet ? vracene_ : provedene_; }

    Kroky provedene_;
    Kroky vracene_;
};

} // namespace zvonika
