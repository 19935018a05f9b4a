#pragma once

#include "playing/stepping/OkoliPisne.h"

namespace zvonika {

class PasPisne;
class ZobrazeniHmatu;

/// What follows a recorded grip: the cursor goes on and the window with it. May throw AutomationError.
class PoZapisu {
public:
    PoZapisu(const OkoliPisne& okoli, ZobrazeniHmatu& zobrazeni, PasPisne& pas)
        : okoli_(okoli), list_(okoli.pisen), zobrazeni_(zobrazeni), pas_(pas) {}

    /// One row down; a grip that stands there is shown by its direction. Otherwise the board stays as it is.
    void naDalsiRadek();
    /// Brings panel and strip up to date with the cursor.
    void obnovOkno();
    void zapocitejHmat() { ++okoli_.panel.zapsanychHmatu; }
    /// Has it said that the grip of this row is recorded; `smazan`: as one without tones and basses, in the
    /// place of one that had some.
    void oznamZapis(int radek, SmerMechu smer, bool smazan = false);
    /// Nothing was recorded, and so the row, that of the cursor, is empty now; `smazan`: it was not. Shows
    /// what is in it.
    void vyprazdneno(int radek, bool smazan);
    /// Has it said besides, before what the shown row has to tell; nothing for "".
    void upozorni(const QString& veta);

private:
    void ukazNovyRadek(int radek);

    OkoliPisne okoli_;
    SongSheet list_;
    ZobrazeniHmatu& zobrazeni_;
    PasPisne& pas_;
};

} // namespace zvonika
