#include "platform/QtWakeUpClock.h"

#include <algorithm>
#include <utility>

namespace zvonika {

QtWakeUpClock::QtWakeUpClock() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout([this] { fire(); });
}

WakeUpClock::Time QtWakeUpClock::now() const {
    return std::chrono::steady_clock::now().time_since_epoch();
}

void QtWakeUpClock::wakeAt(Time when, std::function<void()> call) {
    when_ = when;
    call_ = std::move(call);
    start();
}

void QtWakeUpClock::cancel() {
    timer_.stop();
    call_ = nullptr;
}

void QtWakeUpClock::start() {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(when_ - now());
    timer_.start(std::max(wait, std::chrono::milliseconds::zero()));
}

void QtWakeUpClock::fire() {
    // The event loop counts whole milliseconds and may come a fraction of one too early.
    if (now() < when_)
        start();
    else if (const auto call = std::exchange(call_, nullptr))
        call();
}

} // namespace zvonika
