#pragma once

#include "conversion/StavKonverze.h"
#include "conversion/clsKonverze.h"

namespace zvonika {

/// The song that a conversion starts from: the one that the main window has open, or one chosen in the
/// dialog. Every call may throw AutomationError.
class ZdrojKonverze {
public:
    ZdrojKonverze(Pisen& pisen, Dialogs& dialogs, clsKonverze& konverze, StavKonverze& stav)
        : pisen_(pisen), dialogs_(dialogs), konverze_(konverze), stav_(stav) {}

    /// Takes the current song, if one is open.
    void prevezmi();
    /// Lets the user choose a file. One without a written key is refused and closed again. True when another
    /// song is there to be converted.
    bool vyber();
    /// Saves what is the current song now. One that was chosen here is closed, and the current song is what
    /// it was before.
    void vrat();

    /// The song was open in the main window.
    bool jeZHlavnihoOkna() const { return nactena_; }

private:
    void ukaz(const QString& stupnice);
    void ulozAZavri();
    QString bunkaW1() const;

    Pisen& pisen_;
    Dialogs& dialogs_;
    clsKonverze& konverze_;
    StavKonverze& stav_;
    bool nactena_ = false;
    QString pisenPredTim_, plneJmenoPredTim_; ///< current song before `prevezmi`
};

} // namespace zvonika
