#pragma once

#include "song/CommandStates.h"
#include "song/SongPanel.h"
#include "song/SongSheet.h"

namespace zvonika {

/// The display of the song as recording uses it.
class ZobrazeniPisne {
public:
    virtual ~ZobrazeniPisne() = default;
    virtual void cmdReadTah() = 0;  ///< shows the row under the cursor as a pull grip
    virtual void cmdReadTlak() = 0; ///< shows it as a push grip
    virtual void obnovRadek() = 0;  ///< the text panel of the row under the cursor
    virtual void obnovPas() = 0;    ///< the strip of grips and its highlight
};

/// What follows a recorded grip: the cursor goes on and the window with it. May throw AutomationError.
class PoZapisu {
public:
    PoZapisu(Pisen& pisen, SongPanel& panel, CommandStates& prikazy, ZobrazeniPisne& zobrazeni)
        : list_(pisen), pisen_(pisen), panel_(panel), prikazy_(prikazy), zobrazeni_(zobrazeni) {}

    /// One row down; a grip that stands there is shown by its direction. Otherwise the board stays as it is.
    void naDalsiRadek();
    /// Brings panel and strip up to date with the cursor.
    void obnovOkno();
    void zapocitejHmat() { ++panel_.zapsanychHmatu; }

private:
    void ukazNovyRadek(int radek);

    SongSheet list_;
    Pisen& pisen_;
    SongPanel& panel_;
    CommandStates& prikazy_;
    ZobrazeniPisne& zobrazeni_;
};

} // namespace zvonika
