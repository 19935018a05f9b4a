#pragma once

#include <QString>

#include <optional>

namespace zvonika {

enum class Znamenko { Zadne, Krizek, Becko, Odrazka };

/// Where a note stands on the staff: 60 units per line or space, 420 per octave, 0 = c of the small octave,
/// upwards.
struct PolohaNoty {
    static constexpr int jednotekNaStupen = 60;
    static constexpr int jednotekNaOktavu = 420;

    Znamenko znamenko = Znamenko::Zadne;
    int jednotky = 0;

    /// From the text of `UrciPolohuNoty` ("k420", "b780", "120"); nothing where it is no such text.
    static std::optional<PolohaNoty> zTextu(const QString& text);

    /// The nearest line or space.
    static int zaokrouhli(int jednotky);

    friend bool operator==(const PolohaNoty&, const PolohaNoty&) = default;
};

} // namespace zvonika
