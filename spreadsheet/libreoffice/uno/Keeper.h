#pragma once

#include "spreadsheet/libreoffice/uno/Uno.h"

#include <chrono>
#include <deque>
#include <mutex>
#include <utility>

namespace zvonika {

/// Keeps what Calc has handed over for a while after its use. Calc's sending thread drops its own hold of an
/// object only after the message has gone; were it the last hold by then, it would have to wait for Calc's
/// main thread, which, when it is just telling of an act of the user, waits for the sending thread: for ever.
/// From any thread.
class Keeper {
public:
    template <typename Interface>
    Ref<Interface> keep(const Ref<Interface>& object) {
        const std::scoped_lock lock(mutex_);
        const auto now = Clock::now();
        while (!kept_.empty() && now - kept_.front().first > keptFor)
            kept_.pop_front();
        kept_.emplace_back(now, Ref<css::uno::XInterface>(object.get()));
        return object;
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr auto keptFor = std::chrono::milliseconds(250);

    std::mutex mutex_;
    std::deque<std::pair<Clock::time_point, Ref<css::uno::XInterface>>> kept_;
};

} // namespace zvonika
