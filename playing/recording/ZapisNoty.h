#pragma once

#include "theory/NotovaOsnova.h"

namespace zvonika {

class KlikDiskantu;

/// The board follows the entry staff: told of each note that the player has put, changed or taken away there,
/// it releases the button whose note has gone and marks the button of the new one, which is checked against
/// the key.
class ZapisNoty {
public:
    ZapisNoty(const NotovaOsnova& osnova, KlikDiskantu& diskant) : osnova_(osnova), diskant_(diskant) {}

    void notaVlozena(int slot);
    /// The note of the slot was moved or got another sign; `puvodni`: the tone that stood there before.
    void notaZmenena(int slot, CisloTonu puvodni);
    void notaOdebrana(CisloTonu puvodni);

private:
    const NotovaOsnova& osnova_;
    KlikDiskantu& diskant_;
};

} // namespace zvonika
