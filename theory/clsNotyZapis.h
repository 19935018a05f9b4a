#pragma once

#include "theory/NotovaOsnova.h"
#include "theory/PrijemceNot.h"
#include "theory/clsNoty.h"

#include <optional>

namespace zvonika {

/// A note of the entry staff and where it stands.
struct OdlozenaNota {
    int slot = 0;
    NotaOsnovy nota;
    bool vybrana = false;
};

/// Note entry: what the notes of the entry staff mean, and the rules by which they are put there with the
/// mouse and from the board. Keeps nothing of its own; the staff holds the notes. No tone stands on the staff
/// twice.
///
/// Positions are staff units and are rounded to the nearest line or space. A plain note obeys the key
/// signature, a sign of its own (a natural too) overrules it.
class clsNotyZapis {
public:
    clsNotyZapis(NotovaOsnova& osnova, Dialogs& dialogs);

    /// Prepares the staff for the key: shows its signature and respells the notes, which keep their tones.
    /// Any text that is no key (also the empty one) shows no signature.
    void NastavStupnici(const Key& stupnice);

    /// The name that is recorded: the tone of the slot spelled in the staff's key. Empty for an empty slot
    /// and for a tone that the board does not have.
    ToneName ZjistiNotu(int slot) const;
    /// The name as it is read from the staff, with signature and sign ("eis1," for an e in Cis dur).
    ToneName ctenyNazev(int slot) const;

    /// The note of the slot is not in the scale of the staff's key and is shown in red.
    bool CervenaNota(int slot) const;
    bool CervenaNota0() const { return CervenaNota(0); }
    bool CervenaNota1() const { return CervenaNota(1); }
    bool CervenaNota2() const { return CervenaNota(2); }
    bool CervenaNota3() const { return CervenaNota(3); }
    bool CervenaNota4() const { return CervenaNota(4); }

    /// Puts a plain note into the next free slot and selects it. Nothing happens when all slots are taken,
    /// when the tone is outside 1..49 or when it is on the staff already.
    std::optional<int> pridejNotu(int jednotky);
    /// Moves the note with its sign; a natural that has nothing to cancel at the new place goes. False, and
    /// the note stays, where the tone would be outside 1..49 or is on the staff already.
    bool posunNotu(int slot, int jednotky);
    /// Sets the sign in front of the note (Zadne takes it away); fails as `posunNotu` does.
    bool nastavZnamenko(int slot, Znamenko znamenko);
    void odeberNotu(int slot);

    /// Puts a tone of the board on the staff, spelled and placed already. The slot; nothing when all are
    /// taken. A tone that is there already stays as it is written. A plain note gets a natural where the
    /// player asked for it or where the key signature would make another tone of it.
    std::optional<int> zakresliNotu(const KreslenaNota& nota);
    void odeberTon(CisloTonu ton);
    /// Where the tone stands on the staff; nothing where it does not.
    std::optional<OdlozenaNota> misto(CisloTonu ton) const;
    /// Puts a note back to the place from which it was taken; nothing happens where another one stands there
    /// by now.
    void vrat(const OdlozenaNota& misto);

private:
    std::optional<NotaOsnovy> prectiNotu(const PolohaNoty& poloha) const;
    bool zmenNotu(int slot, const PolohaNoty& poloha);
    std::optional<PolohaNoty> polohaTonu(CisloTonu ton, const Key& stupnice) const;

    NotovaOsnova& osnova_;
    clsNoty noty_;
};

} // namespace zvonika
