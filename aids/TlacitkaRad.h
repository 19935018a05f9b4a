#pragma once

#include <QString>

#include <array>

namespace zvonika {

/// The three buttons of the row restrictions. What a button covers belongs to the button, not to its caption.
enum class TlacitkoRad { cmdCDur, cmdGDur, cmdFDur };

inline constexpr int pocetTlacitekRad = 3;
inline constexpr int toninPodTlacitkem = 4; ///< labels under each button

/// Captions of the three buttons and of the labels under them: which keys are played on the rows that a
/// button leaves free. At first they are those of the first fingering type.
class TlacitkaRad {
public:
    TlacitkaRad();

    const QString& popisek(TlacitkoRad tlacitko) const;
    /// `Label1(index)`, 0..11: 0..3 under `cmdCDur`, 4..7 under `cmdGDur`, 8..11 under `cmdFDur`.
    const QString& label1(int index) const { return label1_.at(static_cast<std::size_t>(index)); }

    /// One rotation by one column towards `cmdCDur`; labels travel with their buttons.
    void PosunStupnice();

private:
    std::array<QString, pocetTlacitekRad> popisky_;
    std::array<QString, std::size_t{pocetTlacitekRad} * toninPodTlacitkem> label1_;
};

} // namespace zvonika
