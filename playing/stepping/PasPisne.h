#pragma once

#include "song/Pas.h"
#include "song/SongReader.h"

namespace zvonika {

/// Keeps the strip of 16 grips in step with the cursor. Calls that read the sheet make one block read and may
/// throw AutomationError.
class PasPisne {
public:
    PasPisne(const Pisen& pisen, Pas& pas) : list_(pisen), pas_(pas) {}

    /// Redraws the strip from the cursor: its row becomes position 1.
    void ZobrazPas();
    /// The cursor went `oKolik` rows down (up where negative): the highlight goes with it, and the strip is
    /// redrawn from the cursor when the highlight leaves it.
    void posun(int oKolik);
    /// The cursor or the cells have changed by other ways: reads the strip's rows afresh and highlights the
    /// cursor's row; redraws from the cursor when that row is outside.
    void obnov();
    /// No song: an empty, hidden strip.
    void vyprazdni();

private:
    void nacti();

    SongReader list_;
    Pas& pas_;
};

} // namespace zvonika
