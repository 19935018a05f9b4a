#include "spreadsheet/libreoffice/ChildProcess.h"

#include <csignal>
#include <sys/wait.h>
#include <thread>

namespace zvonika {

bool signalOne(pid_t process, int signal) {
    return process > 1 && ::kill(process, signal) == 0;
}

bool ChildProcess::running() const {
    const std::scoped_lock lock(mutex_);
    if (id_ > 0 && waitpid(id_, nullptr, WNOHANG) != 0) id_ = -1;
    return id_ > 0;
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds time) const {
    constexpr std::chrono::milliseconds step{5};
    for (std::chrono::milliseconds waited{0}; running(); waited += step) {
        if (waited >= time) return false;
        std::this_thread::sleep_for(step);
    }
    return true;
}

// Looked at again under the lock: another thread may have met its end since it was seen running.
void ChildProcess::kill() {
    const std::scoped_lock lock(mutex_);
    if (signalOne(id_, SIGKILL)) waitpid(id_, nullptr, 0);
    id_ = -1;
}

} // namespace zvonika
