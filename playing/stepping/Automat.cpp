#include "playing/stepping/Automat.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

/// The program was stopped, or the computer cannot keep up: a rush of steps would help nobody.
constexpr std::chrono::seconds nejvetsiZpozdeni{1};
/// From a click into a cell to the first key, and from one syllable to the next.
constexpr std::chrono::seconds klidPoZasahu{2};

} // namespace

Timer1::Interval intervalTempa(int pozice) {
    const int p = std::clamp(pozice, -5, 5);
    return Timer1::Interval(p < 1 ? 2000 - 800 * p : 2000 - 380 * p);
}

Automat::Automat(const CommandStates& prikazy, Timer1& timer1, WakeUpClock& hodiny, KrokAutomatu krok)
    : prikazy_(prikazy), timer1_(timer1), hodiny_(hodiny), krok_(std::move(krok)) {}

Automat::~Automat() {
    hodiny_.cancel();
}

void Automat::cmdTimer() {
    if (timer1_.zapnuty()) {
        zastav();
        return;
    }
    termin_ = hodiny_.now();
    timer1_.zapni(true);
    naplanujDalsi();
}

void Automat::Slider1Change(int pozice) {
    timer1_.nastavInterval(intervalTempa(pozice));
}

void Automat::zastav() {
    hodiny_.cancel();
    timer1_.zapni(false);
}

void Automat::odpocin() {
    klidDo_ = hodiny_.now() + klidPoZasahu;
}

void Automat::naplanujDalsi() {
    const WakeUpClock::Time ted = hodiny_.now();
    if (ted - termin_ > nejvetsiZpozdeni) termin_ = ted;
    termin_ += timer1_.interval();
    hodiny_.wakeAt(termin_, [this] { Timer1Tick(); });
}

void Automat::Timer1Tick() {
    naplanujDalsi(); // before the step: ticks that fall into a box which the step shows are rests, not debts
    if (hodiny_.now() < klidDo_ || !krok_.volno()) return;
    if (prikazy_.povolen(QStringLiteral("cmdTimer")))
        krok();
    else
        zastav(); // no song is open any more
}

void Automat::krok() {
    krok_.domaluj();
    if (!krok_.cmdJakDal()) zastav(); // it would only fail again, with a box at every tick
}

} // namespace zvonika
