#pragma once

#include "theory/Key.h"
#include "theory/PolohaNoty.h"

namespace zvonika {

/// The key signature: up to seven sharps or flats at their places on a treble staff.
class Predznamenani {
public:
    static constexpr int nejviceZnamenek = 7;

    Predznamenani() = default; ///< no sign
    /// The signature of one of the 15 keys; no sign for any other text.
    explicit Predznamenani(const Key& stupnice);

    /// Krizek or Becko; Zadne where there is no sign.
    Znamenko druh() const;
    int pocet() const;
    /// Staff units of sign `i`, 0 to `pocet()` - 1, from left to right.
    int jednotky(int i) const;

    /// Which sign of the signature governs the line or space `jednotky` (in any octave); -1 for none.
    int znamenkoStupne(int jednotky) const;
    /// What that sign makes of a plain note there.
    Znamenko proPolohu(int jednotky) const;

    friend bool operator==(const Predznamenani&, const Predznamenani&) = default;

private:
    int krizky_ = 0; ///< flats where negative
};

} // namespace zvonika
