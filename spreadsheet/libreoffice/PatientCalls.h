#pragma once

#include "spreadsheet/libreoffice/CallThread.h"

#include <functional>

namespace zvonika {

/// What waiting for another program needs of its surroundings. Everything is called on the waiting thread.
struct WaitingCustoms {
    std::function<void()>
        sign; ///< the wait goes on: about ten times a second, from the first moment it is felt
    std::function<bool()> waitOn;   ///< the time is over: true to wait as long again
    std::function<void()> breakOff; ///< makes the call fail soon, by ending what it waits for
};

/// Carries calls out on a thread of their own while the user-interface thread waits, so that a program which
/// does not answer cannot stop the window. A wait that can be felt keeps the window painted; clicks, keys and
/// timers are held back until it is over, so that nothing is entered twice.
class PatientCalls {
public:
    explicit PatientCalls(WaitingCustoms customs) : customs_(std::move(customs)) {}

    /// Throws what the call throws. AutomationError 91 when it was broken off and 1004 when another call is
    /// under way. What the call holds must outlive this object: a call that cannot be broken off is left
    /// behind with it.
    void run(std::chrono::milliseconds patience, std::function<void()> call);

    bool busy() const { return busy_; }

private:
    bool waitWithWindow(std::chrono::milliseconds patience);
    void await(std::chrono::milliseconds patience);
    void breakOff();

    WaitingCustoms customs_;
    CallThread thread_;
    bool busy_ = false;
    bool lost_ = false; ///< the thread never came back
};

} // namespace zvonika
