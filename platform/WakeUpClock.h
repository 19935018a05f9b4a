#pragma once

#include <chrono>
#include <functional>

namespace zvonika {

/// A clock that never goes back, with one wake-up call.
class WakeUpClock {
public:
    using Time = std::chrono::nanoseconds; ///< since some moment in the past, the same one during a run

    virtual ~WakeUpClock() = default;

    virtual Time now() const = 0;

    /// Calls `call` once from the event loop, never before `when` and as soon after it as the loop is free; a
    /// moment that has passed already means the next round of the loop, after the user's input that waits. A
    /// call that was asked for before is forgotten.
    virtual void wakeAt(Time when, std::function<void()> call) = 0;

    /// Forgets the call that was asked for.
    virtual void cancel() = 0;
};

} // namespace zvonika
