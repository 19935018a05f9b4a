#pragma once

#include <QString>

namespace zvonika {

class CommandStates;
class SettingsStore;
class Tonina;
class TrebleBoard;

/// How the treble board is drawn: the three entries of the menu "Nastavení". The check marks of `mnu2Rady`
/// and `mnuCislovat` are the board's own state; both are kept in the settings as "1" or "0" under "Index".
class VolbyHmatniku {
public:
    VolbyHmatniku(TrebleBoard& diskant, const Tonina& tonina, SettingsStore& nastaveni, CommandStates& stavy);

    /// Names on the buttons, in the spelling of the current key, on or off; off empties all captions, so
    /// fingers that are shown go too.
    void mnu2Rady();
    /// Auxiliary numbering beside the board on or off.
    void mnuCislovat();
    /// Turns the board over for the rest of the run; the entry is disabled afterwards.
    void mnuOtocitHmatnik();

private:
    void uloz(const QString& sekce, bool zapnuto);

    TrebleBoard& diskant_;
    const Tonina& tonina_;
    SettingsStore& nastaveni_;
    CommandStates& stavy_;
};

} // namespace zvonika
