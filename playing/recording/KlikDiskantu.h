#pragma once

#include "board/TrebleBoard.h"
#include "theory/OvereniNoty.h"
#include "theory/clsNoty.h"

#include <QString>

#include <functional>

namespace zvonika {

class Tonina;
class clsNotyZapis;

/// What pressing a treble button does: mark, piano key, name and note of the tone. Board and entry staff
/// follow each other through it. While a question of the note check is open, further presses are ignored.
class KlikDiskantu : private PrijemceNot {
public:
    struct Okno {
        std::function<void()> otevriVyberStupnice;      ///< shows the key dialog, returns when it is closed
        std::function<void(const QString& veta)> oznam; ///< tells something on the status line
    };

    KlikDiskantu(TrebleBoard& diskant, clsNotyZapis& noty, const Tonina& tonina, Dialogs& dialogs, Okno okno);

    /// Click on `lbl(n)` or `lblSynchro(n)`: toggles the mark. A sixth tone is marked although the staff
    /// cannot take its note.
    void klik(int n);
    /// A note of this tone was put on the staff: its button is marked, then the note is checked. Nothing
    /// happens where the button is marked already.
    void notaPridana(CisloTonu ton);
    /// The note of this tone left the staff: its button is released.
    void notaOdebrana(CisloTonu ton);
    /// The key has changed: the names on buttons and beside the piano keys follow it.
    void nasledujToninu();

private:
    void oznac(int n);
    void uvolni(int n);

    void popisKlavesu(CisloTonu ton, const ToneName& nazev) override;
    void zakresliNotu(const KreslenaNota& nota) override;
    void vratTlacitko(CisloTonu ton) override;
    void otevriVyberStupnice() override;

    TrebleBoard& diskant_;
    clsNotyZapis& noty_;
    const Tonina& tonina_;
    Okno okno_;
    clsNoty polohy_;
    OvereniNoty overeni_;
    bool overujeSe_ = false;
};

} // namespace zvonika
