#pragma once

#include "playing/song/KonecPisne.h"
#include "playing/song/PisenVOkne.h"
#include "playing/song/ZalozeniPisne.h"

namespace zvonika {

/// The life of a song: creating, opening, choosing one of its sheets, ending. At most one song is open at a
/// time. Whatever fails, no song is ever left half open.
class ZivotPisne {
public:
    ZivotPisne(const OkoliPisne& okoli, Drive& drive, const PisenVOkne::Spolupracovnici& spolupracovnici);
    ZivotPisne(const ZivotPisne&) = delete;
    ZivotPisne& operator=(const ZivotPisne&) = delete;

    void cmdNovaSkladba() { zalozeni_.cmdNovaSkladba(); } ///< as `ZalozeniPisne`
    void cmdEndEdit() { konec_.cmdEndEdit(); }            ///< as `KonecPisne`
    /// Open song. Throws AutomationError; no song is open then and the commands are as before.
    void cmdEdit();
    void otevri(const QString& soubor); ///< the same with a file that is known, by its full name
    /// The user has chosen a sheet in Combo1. Throws AutomationError.
    void Combo1Click(const QString& list);

    /// The current song is open under another name than the window shows (a conversion has made a copy of
    /// it): shows it as if it had been opened. Nothing where it is not open. Throws AutomationError.
    void prevezmiPisen();
    /// The player has saved the song's workbook under another name, and it goes on as the song. Asks nothing
    /// of the spreadsheet.
    void prejmenujPisen(const QString& nazev, const QString& plneJmeno);
    /// The state without a song, as after its end (the board is left as it is): also the state in which the
    /// program starts.
    void stavBezPisne() { vOkne_.stavBezPisne(); }

private:
    void ukazList(const QString& list);
    void oznamJenKeCteni();

    OkoliPisne okoli_;
    const Drive& drive_;
    SongSheet list_;
    SeznamyKroku& kroky_;
    PisenVOkne vOkne_;
    ZalozeniPisne zalozeni_;
    KonecPisne konec_;
};

} // namespace zvonika
