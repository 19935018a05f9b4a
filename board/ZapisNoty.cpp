#include "board/ZapisNoty.h"

#include "board/KlikDiskantu.h"

namespace zvonika {

bool ZapisNoty::pridejNotu(int jednotky) {
    return proved([&] { return noty_.pridejNotu(jednotky).has_value(); });
}

bool ZapisNoty::posunNotu(int slot, int jednotky) {
    return proved([&] { return noty_.posunNotu(slot, jednotky); });
}

bool ZapisNoty::nastavZnamenko(int slot, Znamenko znamenko) {
    return proved([&] { return noty_.nastavZnamenko(slot, znamenko); });
}

void ZapisNoty::odeberNotu(int slot) {
    proved([&] {
        noty_.odeberNotu(slot);
        return true;
    });
}

bool ZapisNoty::proved(const std::function<bool()>& zmena) {
    const NotovaOsnova::Noty puvodni = osnova_.noty();
    if (!zmena()) return false;
    const NotovaOsnova::Noty nove = osnova_.noty(); // the checks below may change the staff again
    for (const auto& nota : puvodni)
        if (nota && !osnova_.slotTonu(nota->ton)) diskant_.notaOdebrana(nota->ton);
    for (const auto& nota : nove)
        if (nota) diskant_.notaPridana(nota->ton);
    return true;
}

} // namespace zvonika
