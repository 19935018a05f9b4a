#pragma once

#include "platform/RuntimeError.h"

#include <QStringList>

#include <cstdlib>
#include <functional>
#include <map>

namespace zvonika::testing {

/// What was asked of a spreadsheet, and which of the calls to come are to fail. Calls are named by their
/// method.
class CallLog {
public:
    QStringList calls; ///< in their order, failed ones too

    int count(const QString& call) const { return static_cast<int>(calls.count(call)); }
    /// The next `times` calls of this name fail, before anything is done.
    void fail(const QString& call, int number, int times = 1, const QString& cause = {}) {
        orders_[call] = {times, [=] { throw RuntimeError(number, cause); }};
    }
    /// The next call of this name fails with an exception that has no number.
    void failWithoutNumber(const QString& call) {
        orders_[call] = {1, [=] { throw std::out_of_range(call.toStdString()); }};
    }
    /// The process ends at the next call of this name, as if it were killed.
    void endProcess(const QString& call) {
        orders_[call] = {1, [] { std::_Exit(9); }};
    }
    bool isOrdered(const QString& call) const { return orders_.count(call) > 0; } ///< a failure is to come

    void note(const char* call) {
        calls.append(QString::fromLatin1(call));
        const auto order = orders_.find(calls.constLast());
        if (order == orders_.end()) return;
        const auto thrown = order->second.thrown;
        if (--order->second.times == 0) orders_.erase(order);
        thrown();
    }

private:
    struct Order {
        int times = 0;
        std::function<void()> thrown;
    };
    std::map<QString, Order> orders_;
};

} // namespace zvonika::testing
