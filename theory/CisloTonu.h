#pragma once

namespace zvonika {

/// Number of a tone, and of the treble button that sounds it: 1 (e of the small octave) to 49 (e4), one
/// semitone per step. Other numbers can be held; `neznamy` (99) stands for a name that is no tone.
class CisloTonu {
public:
    static constexpr int nejnizsi = 1;
    static constexpr int nejvyssi = 49;

    constexpr CisloTonu() = default; ///< unknown
    constexpr explicit CisloTonu(int cislo) : cislo_(cislo) {}
    static constexpr CisloTonu neznamy() { return CisloTonu(); }

    constexpr int hodnota() const { return cislo_; }
    constexpr bool jeVRozsahu() const { return cislo_ >= nejnizsi && cislo_ <= nejvyssi; }

    friend constexpr bool operator==(CisloTonu, CisloTonu) = default;
    friend constexpr bool operator<(CisloTonu a, CisloTonu b) { return a.cislo_ < b.cislo_; }

private:
    int cislo_ = 99;
};

} // namespace zvonika
