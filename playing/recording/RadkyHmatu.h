#pragma once

#include "playing/stepping/Navigace.h"
#include "playing/undo/SeznamyKroku.h"

namespace zvonika {

/// Puts whole rows into the song and takes them out, at the cursor's row and in all its sheets at once, as
/// the rows of two tunings belong together: in each visible sheet whose B1 is filled, and where the song of
/// the active sheet begins lower down, in those that begin with it. One step of the list. May throw
/// AutomationError; the sheets are as before then.
class RadkyHmatu {
public:
    RadkyHmatu(const OkoliPisne& okoli, SeznamyKroku& kroky, Navigace& navigace)
        : okoli_(okoli), list_(okoli.pisen), kroky_(kroky), navigace_(navigace) {}

    /// An empty row at the cursor's; the grip that was there moves down.
    void mnuVlozitHmat();
    /// The cursor's row goes, and those below move up.
    void mnuSmazatHmat();

private:
    int zmenListy(bool vlozit, int radek, const QString& popis);
    QStringList listyPisne(const QString& aktivni);
    int prvniRadek();
    RowMoved posun(bool vlozit, const QString& list, int radek);
    void vezmiZpet(const WorkStep& krok);
    void oznam(const QString& veta);

    OkoliPisne okoli_;
    SongSheet list_;
    SeznamyKroku& kroky_;
    Navigace& navigace_;
};

} // namespace zvonika
