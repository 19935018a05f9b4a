#pragma once

#include <chrono>
#include <mutex>
#include <sys/types.h>

namespace zvonika {

/// Signals one process of this system; false when there is none of that id. Groups of processes, all
/// processes and the first one (ids up to 1) are never signalled.
bool signalOne(pid_t process, int signal);

/// A process that this one has started. From any thread.
class ChildProcess {
public:
    /// `id`: a child that nobody else waits for.
    explicit ChildProcess(pid_t id) : id_(id) {}
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool running() const;
    /// True when it has ended, which it may take this long for.
    bool waitForEnd(std::chrono::milliseconds time) const;
    /// Ends it, if it has not ended, and waits for that.
    void kill();

private:
    mutable std::mutex mutex_;
    mutable pid_t id_; ///< -1 once it is known to have ended: another process may have the id by then
};

} // namespace zvonika
