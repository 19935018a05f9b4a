#pragma once

#include "platform/waiting/PatientCalls.h"

#include <atomic>
#include <thread>

namespace zvonika::testing {

/// A wait during which the window is kept alive for two pictures.
struct FeltWait {
    std::atomic<int> signs = 0;
    WaitingCustoms customs{[this] { ++signs; }, [] { return true; }, [] {}};

    void last() const {
        while (signs < 2)
            std::this_thread::yield();
    }
};

} // namespace zvonika::testing
