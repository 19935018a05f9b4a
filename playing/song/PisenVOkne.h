#pragma once

#include "playing/song/Zvuk.h"
#include "playing/stepping/Navigace.h"
#include "playing/undo/SeznamyKroku.h"
#include "theory/Tonina.h"

namespace zvonika {

/// For tidying up after a failure that is reported already: closes the workbook in front, and what fails here
/// is not told.
void zavriTise(SpreadsheetApplication& excel);

/// What the main window makes of a song: the parts that come to life with it and fall silent when it goes.
class PisenVOkne {
public:
    struct Spolupracovnici {
        ZobrazeniHmatu& zobrazeni;
        PasPisne& pas;
        Navigace& navigace;
        Zvuk& zvuk;
        SeznamyKroku& kroky;
        const Tonina& tonina;            ///< the key that is chosen for recording
        std::function<void()> uvolniVse; ///< releases the whole board
    };

    PisenVOkne(const OkoliPisne& okoli, const Spolupracovnici& spolupracovnici)
        : okoli_(okoli), s_(spolupracovnici), list_(okoli.pisen) {}

    /// The current song was opened, or created with one sheet: its commands, its row, its sheets. Throw
    /// AutomationError.
    void ukazOtevrenou();
    void ukazNovou();
    /// The same of a copy that has been made of a song: nothing of its steps can be taken back.
    void ukazKopii();
    /// Another sheet of it is active: the cursor's row on the side of its direction. Throws AutomationError.
    void ukazRadekListu();

    /// The name of the song alone, and what hangs on it: title and sounds.
    void ukazJmeno();

    /// No song is open any more, or yet. The board is left as it is.
    void stavBezPisne();
    /// Releases the board and takes away what it shows of a grip.
    void uvolniDesku();
    /// Back to no song after a failure half way; the failure itself is the caller's to report.
    void zahodRozdelanou();

private:
    void NaplnListy(); ///< fills the list of Combo1 with the names of all sheets, in workbook order
    void pripomen(const QString& veta);
    void pripomenToninu();
    void vyprazdniTexty();

    OkoliPisne okoli_;
    Spolupracovnici s_;
    SongSheet list_;
};

} // namespace zvonika
