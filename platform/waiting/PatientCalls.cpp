#include "platform/waiting/PatientCalls.h"

#include "platform/RuntimeError.h"
#include "platform/waiting/CallThread.h"
#include "platform/waiting/HeldEvents.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QScopedValueRollback>

#include <exception>
#include <memory>

namespace zvonika {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds unfelt{80};      ///< a wait this long needs no window
constexpr milliseconds signPeriod{100}; ///< between signs of a longer one

void wakeEventLoop() {
    if (auto* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            application, [] {}, Qt::QueuedConnection);
}

std::function<void()> keepingFailure(std::function<void()> call,
                                     std::shared_ptr<std::exception_ptr> failure) {
    return [call = std::move(call), failure = std::move(failure)] {
        try {
            call();
        } catch (...) {
            *failure = std::current_exception();
        }
    };
}

[[noreturn]] void fail(int number, const QString& sentence) {
    throw RuntimeError(number, sentence);
}

} // namespace

struct PatientCalls::State {
    explicit State(WaitingCustoms with) : customs(std::move(with)) {}

    void run(milliseconds patience, std::function<void()> call);
    bool waitWithWindow(milliseconds patience);
    void await(milliseconds patience);
    void breakOff();
    void leaveBehind();

    WaitingCustoms customs;
    CallThread thread;
    bool busy = false;
    bool lost = false;      ///< the thread never came back
    bool abandoned = false; ///< the object that waited has gone, and with it what `customs` speak of
};

PatientCalls::PatientCalls(WaitingCustoms customs) : state_(std::make_shared<State>(std::move(customs))) {}

PatientCalls::~PatientCalls() {
    state_->abandoned = true;
}

bool PatientCalls::busy() const {
    return state_->busy;
}

void PatientCalls::run(milliseconds patience, std::function<void()> call) {
    const auto state = state_;
    state->run(patience, std::move(call));
}

void PatientCalls::State::run(milliseconds patience, std::function<void()> call) {
    if (busy) fail(error::applicationDefined, QStringLiteral("Tabulka ještě dokončuje předchozí příkaz."));
    if (lost) fail(error::objectNotSet, QStringLiteral("Tabulka neodpovídá."));
    const QScopedValueRollback waiting(busy, true);
    const auto failure = std::make_shared<std::exception_ptr>();
    thread.begin(keepingFailure(std::move(call), failure), wakeEventLoop);
    if (!thread.waitFor(unfelt)) await(patience);
    if (*failure) std::rethrow_exception(*failure);
}

void PatientCalls::State::await(milliseconds patience) {
    while (!waitWithWindow(patience)) {
        const bool on = !abandoned && customs.waitOn();
        if (abandoned) return leaveBehind();
        if (thread.waitFor(milliseconds(0))) return;
        if (!on) return breakOff();
    }
}

/// False when the patience is over, or who waited is gone.
bool PatientCalls::State::waitWithWindow(milliseconds patience) {
    if (!QCoreApplication::instance()) return thread.waitFor(patience);
    const HeldEvents held(signPeriod);
    QElapsedTimer clock;
    clock.start();
    for (milliseconds nextSign{0}; !thread.waitFor(milliseconds(0));) {
        const milliseconds waited(clock.elapsed());
        if (waited > patience) break;
        if (waited >= nextSign) {
            customs.sign();
            nextSign = waited + signPeriod;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (abandoned) return false;
    }
    QCoreApplication::processEvents(); // what came at the last moment is of the wait too
    return !abandoned && thread.waitFor(milliseconds(0));
}

void PatientCalls::State::breakOff() {
    customs.breakOff();
    if (!thread.waitFor(customs.untilBroken)) {
        thread.giveUp();
        lost = true;
    }
    fail(error::objectNotSet, QStringLiteral("Tabulka byla ukončena, protože neodpovídala."));
}

void PatientCalls::State::leaveBehind() {
    thread.giveUp();
    lost = true;
    fail(error::objectNotSet, QStringLiteral("Tabulka byla mezitím ukončena."));
}

} // namespace zvonika
