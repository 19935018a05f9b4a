#pragma once

#include "song/Pas.h"
#include "song/SongReader.h"

namespace zvonika {

/// Keeps the strip of 16 grips in step with the cursor. It is given the rows that it shows, so that one read
/// serves board and strip: each way of following has a call that reads what it needs and the neighbourhood of
/// the cursor besides, in one block (which may throw AutomationError), and a call that shows it.
class PasPisne {
public:
    PasPisne(const Pisen& pisen, Pas& pas) : list_(pisen), pas_(pas) {}

    /// Redraws the strip from the cursor: its row becomes position 1.
    VyrezPisne ctiOdKurzoru() const;
    void ZobrazPas(const VyrezPisne& vyrez);
    /// The cursor went `oKolik` rows down (up where negative): the highlight goes with it, and the strip is
    /// redrawn from the cursor when the highlight leaves it.
    VyrezPisne ctiPoPosunu(int oKolik) const;
    void posun(int oKolik, const VyrezPisne& vyrez);
    /// The cursor or the cells have changed by other ways: shows the strip's rows afresh and highlights the
    /// cursor's row; redraws from the cursor when that row is outside.
    VyrezPisne ctiPoZmene() const;
    void obnov(const VyrezPisne& vyrez);
    /// No song: an empty, hidden strip.
    void vyprazdni();

private:
    bool maRadek(int radek) const;
    VyrezPisne cti(int radek, int prvniRadekPasu) const;
    void napln(const VyrezPisne& vyrez);

    SongReader list_;
    Pas& pas_;
};

} // namespace zvonika
