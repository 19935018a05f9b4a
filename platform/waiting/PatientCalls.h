#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace zvonika {

/// What waiting for another program needs of its surroundings. Everything is called on the waiting thread.
struct WaitingCustoms {
    std::function<void()>
        sign; ///< the wait goes on: about ten times a second, from the first moment it is felt
    std::function<bool()> waitOn;                ///< the time is over: true to wait as long again
    std::function<void()> breakOff;              ///< makes the call fail soon, by ending what it waits for
    std::chrono::milliseconds untilBroken{3000}; ///< how soon; a call that takes longer is left behind
};

/// Carries calls out on a thread of their own while the user-interface thread waits, so that a program which
/// does not answer cannot stop the window. A wait that can be felt keeps the window painted; timers are held
/// back until it is over, and clicks and keys that come meanwhile are dropped: they were meant for what was
/// on the screen then, and nothing is entered twice.
class PatientCalls {
public:
    explicit PatientCalls(WaitingCustoms customs);
    /// What a wait lets happen may end this object too: the call that is waited for is left behind then, and
    /// its `run` raises AutomationError 91.
    ~PatientCalls();
    PatientCalls(const PatientCalls&) = delete;
    PatientCalls& operator=(const PatientCalls&) = delete;

    /// Throws what the call throws. AutomationError 91 when it was broken off and 1004 when another call is
    /// under way. What the call holds must outlive this object: a call that cannot be broken off is left
    /// behind with it.
    void run(std::chrono::milliseconds patience, std::function<void()> call);

    bool busy() const;

private:
    struct State;
    std::shared_ptr<State> state_; ///< what a wait goes on with when this object has gone
};

} // namespace zvonika
