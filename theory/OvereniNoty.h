#pragma once

#include "platform/Dialogs.h"
#include "theory/PrijemceNot.h"

namespace zvonika {

class Tonina;
class clsNoty;

/// The conversation about a note that is to be drawn: whether it belongs to the key, and what to do where it
/// does not.
class OvereniNoty {
public:
    OvereniNoty(Dialogs& dialogs, const clsNoty& noty, const Tonina& tonina, PrijemceNot& prijemce);

    /// Names the tone of a pressed button in the current key and hands on the name and then the note. A tone
    /// outside the key is asked about first: Yes draws it (one without sharp or flat with a natural in
    /// front), Cancel hands the button back, No opens the key dialog, after which the tone is checked again
    /// if the key has changed and is left undrawn if not. A tone that cannot be placed is reported.
    void OverNotuVeStupnici(CisloTonu ton);

private:
    Message dotaz(const KreslenaNota& nota) const;
    void vykonej(Answer odpoved, KreslenaNota nota);
    void zmenStupnici(CisloTonu ton);

    Dialogs& dialogs_;
    const clsNoty& noty_;
    const Tonina& tonina_;
    PrijemceNot& prijemce_;
};

} // namespace zvonika
