#pragma once

#include "platform/Drive.h"
#include "playing/song/Zvuk.h"
#include "playing/stepping/Navigace.h"

namespace zvonika {

/// The life of a song: creating, opening, choosing one of its sheets, ending. At most one song is open at a
/// time. Whatever fails, no song is ever left half open.
class ZivotPisne {
public:
    /// The parts of the program that a song brings to life and that fall silent with it.
    struct Spolupracovnici {
        ZobrazeniHmatu& zobrazeni;
        PasPisne& pas;
        Navigace& navigace;
        Zvuk& zvuk;
        std::function<void()> uvolniVse; ///< releases the whole board
    };

    ZivotPisne(const OkoliPisne& okoli, Drive& drive, const Spolupracovnici& spolupracovnici);

    /// New song. Failures of the spreadsheet application are reported here; their cause stands in
    /// `panel.upozorneni`.
    void cmdNovaSkladba();
    /// Open song. Throws AutomationError; no song is open then and the commands are as before.
    void cmdEdit();
    /// The user has chosen a sheet in Combo1. Throws AutomationError.
    void Combo1Click(const QString& list);
    /// End of song. The song is forgotten in any case; failures of saving are reported here.
    void cmdEndEdit();

    /// The current song is open under another name than the window shows (a conversion has made a copy of
    /// it): shows it as if it had been opened. Nothing where it is not open. Throws AutomationError.
    void prevezmiPisen();

    /// Fills the list of Combo1 with the names of all sheets, in workbook order. Throws AutomationError.
    void NaplnListy();

    /// The state without a song, as after its end (the board is left as it is): also the state in which the
    /// program starts.
    void stavBezPisne();

private:
    void zalozPisen(const QString& plneJmeno);
    void zalozSesit(const QString& plneJmeno);
    void ozivNovouPisen();
    void ukazOtevrenouPisen();
    void ukazList(const QString& list);
    void ukazRadekListu();
    void ulozAZavri();
    void zahodRozdelanou();
    void vyprazdniTexty();

    OkoliPisne okoli_;
    Drive& drive_;
    Spolupracovnici s_;
    SongSheet list_;
};

} // namespace zvonika
