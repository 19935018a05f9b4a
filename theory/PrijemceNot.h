#pragma once

#include "theory/CisloTonu.h"
#include "theory/PolohaNoty.h"
#include "theory/ToneName.h"

namespace zvonika {

/// A note to be drawn on the staff.
struct KreslenaNota {
    CisloTonu ton;
    ToneName nazev;         ///< as it is spelled in the key
    PolohaNoty poloha;      ///< Zadne, Krizek or Becko with its line or space
    bool sOdrazkou = false; ///< the player wants a natural in front of it

    friend bool operator==(const KreslenaNota&, const KreslenaNota&) = default;
};

/// Who carries out what the note check decides.
class PrijemceNot {
public:
    virtual ~PrijemceNot() = default;

    /// The name beside piano key `ton` (`lblTonKlav`).
    virtual void popisKlavesu(CisloTonu ton, const ToneName& nazev) = 0;
    virtual void zakresliNotu(const KreslenaNota& nota) = 0;
    /// The pressed button goes back to the button handling of the board, as if it had been pressed again.
    virtual void vratTlacitko(CisloTonu ton) = 0;
    /// Opens the key dialog (`cmdStupnice`) and returns when it is closed.
    virtual void otevriVyberStupnice() = 0;
};

} // namespace zvonika
