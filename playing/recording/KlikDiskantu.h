#pragma once

#include "board/TrebleBoard.h"
#include "theory/OvereniNoty.h"
#include "theory/clsNoty.h"
#include "theory/clsNotyZapis.h"

#include <QString>

#include <functional>
#include <optional>

namespace zvonika {

class Tonina;

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
    /// The second click of a double click on the button. Where the first one has released it, mark and note
    /// are back as they were, and nothing is asked; a free button is marked. True when the button is marked.
    bool dvojklik(int n);
    /// A note of this tone was put on the staff: its button is marked, then the note is checked. Nothing
    /// happens where the button is marked already.
    void notaPridana(CisloTonu ton);
    /// The note of this tone left the staff: its button is released.
    void notaOdebrana(CisloTonu ton);
    /// The key has changed: the names on buttons and beside the piano keys follow it.
    void nasledujToninu();

private:
    /// A button that a click has released, and what it takes to take that back.
    struct Pusteny {
        int n = 0;
        ZnackyDiskantu predtim, potom;
        std::optional<OdlozenaNota> nota;
    };

    void oznac(int n);
    void uvolni(int n);
    bool vratPusteny(int n);

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
    std::optional<Pusteny> pusteny_; ///< by the last click
};

} // namespace zvonika
