#pragma once

#include "platform/WakeUpClock.h"

#include <algorithm>
#include <utility>

namespace zvonika::testing {

/// A clock that is turned by hand: no time passes by itself.
class RucniHodiny : public WakeUpClock {
public:
    using Ms = std::chrono::milliseconds;

    Time now() const override { return ted_; }
    void wakeAt(Time when, std::function<void()> call) override {
        termin_ = when;
        volani_ = std::move(call);
    }
    void cancel() override { volani_ = nullptr; }

    bool ceka() const { return volani_ != nullptr; }

    /// Time passes while the event loop is busy: nothing is called.
    void prodleva(Ms doba) { ted_ += doba; }
    /// The event loop goes round once at this moment. True when there was a call to make.
    bool obratka() {
        if (!volani_ || termin_ > ted_) return false;
        std::exchange(volani_, nullptr)();
        return true;
    }
    /// Time passes until the next call is due, which is made.
    void naTermin() {
        ted_ = std::max(ted_, termin_);
        obratka();
    }
    /// Time passes with an idle event loop: every call comes exactly when it is due.
    void uplyn(Ms doba) {
        const Time konec = ted_ + doba;
        while (volani_ && termin_ <= konec)
            naTermin();
        ted_ = std::max(ted_, konec);
    }

private:
    Time ted_{std::chrono::hours(1)};
    Time termin_{};
    std::function<void()> volani_;
};

} // namespace zvonika::testing
