#include "platform/waiting/CallThread.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace zvonika {

struct CallThread::State {
    std::mutex mutex;
    std::condition_variable begun, done;
    std::function<void()> call, whenDone;
    bool idle = true, ending = false;
    std::thread thread;

    void run() {
        std::unique_lock lock(mutex);
        for (;;) {
            begun.wait(lock, [this] { return ending || !idle; });
            if (idle) return;
            carryOut(lock);
        }
    }

    // What the call holds goes on this thread and before the caller goes on.
    void carryOut(std::unique_lock<std::mutex>& lock) {
        const auto ended = std::move(whenDone);
        lock.unlock();
        call();
        call = nullptr;
        lock.lock();
        idle = true;
        done.notify_all();
        lock.unlock();
        ended();
        lock.lock();
    }
};

CallThread::CallThread() : state_(std::make_shared<State>()) {
    state_->thread = std::thread([state = state_] { state->run(); });
}

CallThread::~CallThread() {
    if (!state_->thread.joinable()) return;
    {
        const std::scoped_lock lock(state_->mutex);
        state_->ending = true;
    }
    state_->begun.notify_all();
    state_->thread.join();
}

void CallThread::begin(std::function<void()> call, std::function<void()> whenDone) {
    {
        const std::scoped_lock lock(state_->mutex);
        state_->call = std::move(call);
        state_->whenDone = std::move(whenDone);
        state_->idle = false;
    }
    state_->begun.notify_all();
}

bool CallThread::waitFor(std::chrono::milliseconds time) const {
    std::unique_lock lock(state_->mutex);
    return state_->done.wait_for(lock, time, [this] { return state_->idle; });
}

void CallThread::giveUp() {
    {
        const std::scoped_lock lock(state_->mutex);
        state_->ending = true;
        state_->thread.detach();
    }
    state_->begun.notify_all();
}

} // namespace zvonika
