#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace zvonika {

/// A thread that carries out one call after the other, for one caller.
class CallThread {
public:
    CallThread();
    /// Waits for a call that is under way, unless the thread was given up.
    ~CallThread();
    CallThread(const CallThread&) = delete;
    CallThread& operator=(const CallThread&) = delete;

    /// `call` throws nothing; the one before is done. `whenDone` comes on the thread.
    void begin(std::function<void()> call, std::function<void()> whenDone);
    /// True when the call is done, which it may take this long for.
    bool waitFor(std::chrono::milliseconds time) const;
    /// A call that never ends stays behind with its thread and all that it holds; no other can be begun.
    void giveUp();

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace zvonika
