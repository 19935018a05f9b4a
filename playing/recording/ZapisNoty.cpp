#include "playing/recording/ZapisNoty.h"

#include "playing/recording/KlikDiskantu.h"

namespace zvonika {

void ZapisNoty::notaVlozena(int slot) {
    if (const auto nota = osnova_.nota(slot))
        diskant_.notaPridana(nota->ton); // the check may change the staff
}

void ZapisNoty::notaZmenena(int slot, CisloTonu puvodni) {
    // A sign that leaves the tone as it was (a natural before a plain note) changes nothing on the board.
    if (!osnova_.slotTonu(puvodni)) diskant_.notaOdebrana(puvodni);
    notaVlozena(slot);
}

void ZapisNoty::notaOdebrana(CisloTonu puvodni) {
    diskant_.notaOdebrana(puvodni);
}

} // namespace zvonika
