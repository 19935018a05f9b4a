#pragma once

#include "theory/PolohaNoty.h"
#include "theory/clsNotyZapis.h"

#include <functional>

namespace zvonika {

class KlikDiskantu;

/// Working on the entry staff with the mouse: after every change of a note the board follows. A button whose
/// note has gone is released, the button of a new note is marked and the note is checked against the key.
class ZapisNoty {
public:
    ZapisNoty(NotovaOsnova& osnova, clsNotyZapis& noty, KlikDiskantu& diskant)
        : osnova_(osnova), noty_(noty), diskant_(diskant) {}

    /// Puts a note into the next free slot; `jednotky` in staff units. False when it cannot stand there.
    bool pridejNotu(int jednotky);
    bool posunNotu(int slot, int jednotky); ///< false: the note stays
    bool nastavZnamenko(int slot, Znamenko znamenko);
    void odeberNotu(int slot);

private:
    bool proved(const std::function<bool()>& zmena);

    NotovaOsnova& osnova_;
    clsNotyZapis& noty_;
    KlikDiskantu& diskant_;
};

} // namespace zvonika
