#pragma once

#include "playing/stepping/OkoliPisne.h"
#include "playing/stepping/PasPisne.h"
#include "playing/stepping/ZobrazeniHmatu.h"

#include <functional>
#include <utility>

namespace zvonika {

class TrebleBoard;

/// Walks through the grips of the song. The cursor is the spreadsheet's active cell in column B. Every
/// command may throw AutomationError; the board is released then already.
class Navigace {
public:
    /// `uvolniVse`: releases the whole board (treble, keys, basses, notes and their signs).
    Navigace(const OkoliPisne& okoli, ZobrazeniHmatu& zobrazeni, PasPisne& pas, TrebleBoard& diskant,
             std::function<void()> uvolniVse);

    /// What stops automatic stepping; nothing until it is set.
    void nastavZastaveniCasovace(std::function<void()> zastavTimer1) {
        zastavTimer1_ = std::move(zastavTimer1);
    }

    void cmdPrvni();
    /// On row 1 only disables the backward commands; arriving there leaves them enabled.
    void cmdPredchozi();
    /// Has no stop at the end of the song.
    void cmdDalsi();
    /// The row above the first empty cell of B1:B500. A song that fills all of it keeps the cursor where it
    /// is and says so in `panel.upozorneni`.
    void cmdPosledni();
    void cmdPredTah();
    void cmdPredTlak();
    void cmdDalsiTah();
    void cmdDalsiTlak();
    void cmdReadTah() { zobrazeni_.cmdReadTah(); }
    void cmdReadTlak() { zobrazeni_.cmdReadTlak(); }
    void cmdJakDal();
    void cmdJakDalZpet();
    /// To a row that the player has chosen, on the side of its column I; without a direction the side stays,
    /// and nothing is asked.
    void naRadek(int radek);

    /// Shows the cursor's row on the side of its column I and colours the stepping buttons. A missing
    /// direction stops automatic stepping with the message "Neprovedeno.".
    void UrciSmerMechu(const VyrezPisne& vyrez);
    /// Shows the cursor's row on the side that is shown already, and the strip from it on.
    void ukazOdKurzoru();

    /// The user has moved the cursor or edited cells in the spreadsheet's window: everything that is shown of
    /// the song follows, without boxes and without touching cursor or marks. Lets no AutomationError out;
    /// does nothing while another workbook than the song is in front.
    void sledujKurzor();

private:
    int uvolniAVyberBunkuB();
    VyrezPisne predchozi();
    VyrezPisne dalsi();
    VyrezPisne krok(int oKolik);
    void zustanNaPrvnim();
    void zustanNaRadku(int radek);
    void ohlasChybejiciSmer();
    void obarvi(BarvaKroku barva);
    void sledujList();
    void sledujRadek();

    OkoliPisne okoli_;
    SongSheet list_;
    ZobrazeniHmatu& zobrazeni_;
    PasPisne& pas_;
    TrebleBoard& diskant_;
    std::function<void()> uvolniVse_;
    std::function<void()> zastavTimer1_ = [] {};
};

} // namespace zvonika
