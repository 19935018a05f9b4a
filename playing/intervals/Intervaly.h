#pragma once

#include "playing/intervals/ZobrazeniIntervalu.h"
#include "song/SongPanel.h"
#include "song/SongReader.h"
#include "theory/CisloTonu.h"
#include "theory/Key.h"
#include "theory/clsNoty.h"

#include <QString>

#include <optional>

namespace zvonika {

class Tonina;
struct VychodiskoIntervalu;

/// What the interval commands see of the program. Held by reference; all of it outlives them.
struct OkoliIntervalu {
    Pisen& pisen;
    Dialogs& dialogs;
    SongPanel& panel; ///< `upozorneni` tells the result in words, or why there is none
    TrebleBoard& diskant;
    ZobrazovaciOsnova& osnova;
    const Tonina& tonina;
    const int& kroky;       ///< the chosen interval in scale steps, 1..14
    QString slozkaProgramu; ///< native folder of the note table, which every command reads afresh
};

/// What is asked for.
struct ZadaniIntervalu {
    CisloTonu ton;
    Key stupnice;
    int kroky;
};

/// The conversations about intervals. A command replaces the interval shown before it.
///
/// Steps are counted in the current key; while none is chosen, in the key that the row of the grip was
/// written in. From a tone outside the scale the user is asked whether to go on; the steps are then counted
/// from the tone of the scale that is written on the same line or space, which the status line says.
class Intervaly {
public:
    explicit Intervaly(const OkoliIntervalu& okoli);

    /// Above and below the tone that the player means: the one marked last or, where none is marked, the
    /// lowest of the shown grip.
    void cmdInterval();
    void cmdSpodInterval();
    /// Above the lowest tone of the grip in the current row. May throw AutomationError.
    void cmdIntervalOdNejnizsiho();

private:
    void ukazOdZvoleneho(int kroky);
    void ukaz(CisloTonu ton, const QString& toninaRadku, int kroky);
    std::optional<Key> stupnice(const QString& toninaRadku) const;
    bool chceOdhad(const VychodiskoIntervalu& vychodisko, const ZadaniIntervalu& zadani);
    void spoctiAUkaz(const VychodiskoIntervalu& vychodisko, const ZadaniIntervalu& zadani);
    void oznam(const QString& veta) { okoli_.panel.upozorneni = veta; }

    OkoliIntervalu okoli_;
    ZobrazeniIntervalu zobrazeni_;
    clsNoty noty_;
};

} // namespace zvonika
