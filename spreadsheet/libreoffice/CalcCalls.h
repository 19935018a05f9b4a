#pragma once

#include "platform/waiting/PatientCalls.h"
#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/Patience.h"
#include "spreadsheet/libreoffice/UserNotices.h"

#include <QScopeGuard>

#include <optional>
#include <source_location>
#include <type_traits>

namespace zvonika {

/// Which function asks.
#ifdef __cpp_lib_source_location
using CallPlace = std::source_location;
#else // clang before 16 with the standard library of GCC
struct CallPlace {
    static CallPlace current() { return {}; }
    static const char* function_name() { return "?"; }
};
#endif

/// The way to one Calc: carries calls out on the thread of its engine while the user-interface thread waits.
/// A call on a Calc that is gone, or not there yet, raises AutomationError 91, one that comes while another
/// is under way 1004. The log names where each comes from, and how long it took.
class CalcCalls {
public:
    using Where = CallPlace;

    /// `waitOver`: a wait that could be felt has ended.
    CalcCalls(const WaitingCustoms& customs, std::function<void()> waitOver, const Patience& patience);
    CalcCalls(const CalcCalls&) = delete;
    CalcCalls& operator=(const CalcCalls&) = delete;

    /// From now on there is a Calc, for as long as its engine and `running` say so.
    void attach(std::shared_ptr<CalcEngine> engine, std::shared_ptr<UserNotices> notices,
                std::function<bool()> running);
    /// There is none any more; the engine goes on its own thread. Throws nothing.
    void detach();
    /// `settle` comes before each call that may be about other cells than those dealt with so far.
    void settleWith(std::function<void()> settle) { settle_ = std::move(settle); }
    /// `deliver` comes before every call but those of `askNow`: what has been kept back reaches Calc first.
    void deliverWith(std::function<void()> deliver) { deliver_ = std::move(deliver); }

    const Patience& patience() const { return patience_; }
    bool busy() const { return calls_.busy(); }
    bool alive() const;
    void requireRunning() const;
    unsigned acts() const { return notices_->acts(); } ///< of the user, as far as they are known
    unsigned moves() const { return notices_->moves(); }

    /// Runs `work` on the thread of the engine, be there one or not.
    void carryOut(std::chrono::milliseconds patience, const std::function<void()>& work,
                  Where where = Where::current());

    /// Gives what `calls` makes of the engine.
    template <typename Calls>
    auto ask(std::chrono::milliseconds patience, Calls calls, Where where = Where::current()) {
        if (settle_) settle_();
        return askAside(patience, std::move(calls), where);
    }
    template <typename Calls>
    auto ask(Calls calls, Where where = Where::current()) {
        return ask(patience_.cell, std::move(calls), where);
    }
    /// The same for calls which leave what has been seen of the sheet as it is.
    template <typename Calls>
    auto askAside(std::chrono::milliseconds patience, Calls calls, Where where = Where::current()) {
        requireRunning();
        if (deliver_) deliver_();
        return askNow(patience, std::move(calls), where);
    }
    template <typename Calls>
    auto askAside(Calls calls, Where where = Where::current()) {
        return askAside(patience_.cell, std::move(calls), where);
    }
    /// The same, whatever else there may be to do before.
    template <typename Calls>
    auto askNow(std::chrono::milliseconds patience, Calls calls, Where where = Where::current());

private:
    /// Whether the user has been shown that Calc takes its time, and what to do when that is over. A wait
    /// that ends this object goes on with it.
    struct Sign;
    std::shared_ptr<Sign> sign_;
    std::function<void()> settle_, deliver_;
    Patience patience_;
    std::function<bool()> running_;
    std::shared_ptr<UserNotices> notices_;
    std::shared_ptr<CalcEngine> engine_; ///< null: no Calc
    PatientCalls calls_;
};

template <typename Calls>
auto CalcCalls::askNow(std::chrono::milliseconds patience, Calls calls, Where where) {
    using Result = std::invoke_result_t<Calls, CalcEngine&>;
    requireRunning();
    // What the user did meanwhile has been held back; a call that fails holds it back no longer than others.
    const auto after = qScopeGuard([notices = notices_] { notices->deliverAgain(); });
    // Shared, because a call that never ends stays behind with what it holds.
    if constexpr (std::is_void_v<Result>) {
        carryOut(
            patience, [engine = engine_, calls]() mutable { calls(*engine); }, where);
    } else {
        auto result = std::make_shared<std::optional<Result>>();
        carryOut(
            patience, [engine = engine_, calls, result]() mutable { *result = calls(*engine); }, where);
        return std::move(**result);
    }
}

} // namespace zvonika
