#pragma once

#include "platform/WakeUpClock.h"
#include "playing/stepping/Timer1.h"
#include "song/CommandStates.h"

#include <functional>

namespace zvonika {

/// Interval of `Timer1` for a position of the tempo slider, -5 (slowest, 6000 ms) to 5 (fastest, 100 ms); 0
/// is 2000 ms. Positions beyond count as the nearest one.
Timer1::Interval intervalTempa(int pozice);

/// What a tick of the stepping timer does to the program.
struct KrokAutomatu {
    std::function<bool()> volno;     ///< false while a box is up, a procedure runs or a text is being typed
    std::function<void()> domaluj;   ///< paints what an earlier step has left to paint
    std::function<bool()> cmdJakDal; ///< next grip with bellows check; false when it failed
};

/// Automatic stepping: performs `cmdJakDal` at the rate of the tempo slider.
///
/// Ticks keep to the clock: each is due one interval after the moment the one before was due, so that a late
/// one delays none of the others and nothing adds up over a song. Ticks that are late because a step took
/// long are made up for one at a time, each grip painted before the next; after more than a second of delay
/// the rhythm starts anew instead of rushing. A tick for which the program is not free is a rest: no step
/// is taken and none is made up for. So is one that comes when the player is at work in the sheet. No grip is
/// ever left out.
class Automat {
public:
    Automat(const CommandStates& prikazy, Timer1& timer1, WakeUpClock& hodiny, KrokAutomatu krok);
    ~Automat();
    Automat(const Automat&) = delete;
    Automat& operator=(const Automat&) = delete;

    /// Switches stepping on, with the first step one interval later, or off.
    void cmdTimer();
    /// A new position of the tempo slider; the interval that runs now is let run out.
    void Slider1Change(int pozice);
    void zastav();
    /// The player has done something in the sheet: every tick is a rest until he has left it alone for a
    /// while, or the next step would take the cell away in which he is going to write.
    void odpocin();

private:
    void Timer1Tick();
    void krok();
    void naplanujDalsi();

    const CommandStates& prikazy_;
    Timer1& timer1_;
    WakeUpClock& hodiny_;
    KrokAutomatu krok_;
    WakeUpClock::Time termin_{}; ///< when the tick awaited, or being carried out, is due
    WakeUpClock::Time klidDo_{}; ///< until then ticks are rests
};

} // namespace zvonika
