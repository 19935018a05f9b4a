#pragma once

#include <QString>

namespace zvonika {

/// What the status line speaks of.
struct StavProgramu {
    bool pisenOtevrena = false;
    QString stupnice;         ///< caption of the key button
    bool neniCoZapsat = true; ///< no treble or bass button is marked and no note entered
    bool radekPrazdny = true; ///< the current row holds no grip
    QString upozorneni;       ///< what the last command has to tell
    QString zapsano;          ///< the grip that it has recorded, one sentence; "" when it has not
    bool automatBezi = false; ///< the song is being stepped through automatically
};

/// The text of the status line: what the last command has to tell, otherwise what to do next, with a warning
/// while no key is chosen. Never empty.
QString stavovyRadek(const StavProgramu& stav);

} // namespace zvonika
