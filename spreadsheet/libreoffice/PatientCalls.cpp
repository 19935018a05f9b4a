#include "spreadsheet/libreoffice/PatientCalls.h"

#include "platform/RuntimeError.h"

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
constexpr milliseconds untilBroken{3000};

/// Holds back the timers of the whole program, its own pulse excepted. A timer whose event is eaten comes
/// again after its interval, a single-shot one too.
class HeldTimers : public QObject {
public:
    HeldTimers() {
        QCoreApplication::instance()->installEventFilter(this);
        startTimer(signPeriod); // wakes the loop that waits
    }

    bool eventFilter(QObject* target, QEvent* event) override {
        return event->type() == QEvent::Timer && target != this;
    }
};

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

void PatientCalls::run(milliseconds patience, std::function<void()> call) {
    if (busy_) fail(error::applicationDefined, QStringLiteral("Tabulka ještě dokončuje předchozí příkaz."));
    if (lost_) fail(error::objectNotSet, QStringLiteral("Tabulka neodpovídá."));
    const QScopedValueRollback waiting(busy_, true);
    const auto failure = std::make_shared<std::exception_ptr>();
    thread_.begin(keepingFailure(std::move(call), failure), wakeEventLoop);
    if (!thread_.waitFor(unfelt)) await(patience);
    if (*failure) std::rethrow_exception(*failure);
}

void PatientCalls::await(milliseconds patience) {
    while (!waitWithWindow(patience)) {
        const bool on = customs_.waitOn();
        if (thread_.waitFor(milliseconds(0))) return;
        if (!on) return breakOff();
    }
}

bool PatientCalls::waitWithWindow(milliseconds patience) {
    if (!QCoreApplication::instance()) return thread_.waitFor(patience);
    const HeldTimers held;
    QElapsedTimer clock;
    clock.start();
    for (milliseconds nextSign{0}; !thread_.waitFor(milliseconds(0));) {
        const milliseconds waited(clock.elapsed());
        if (waited > patience) return false;
        if (waited >= nextSign) {
            customs_.sign();
            nextSign = waited + signPeriod;
        }
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void PatientCalls::breakOff() {
    customs_.breakOff();
    if (!thread_.waitFor(untilBroken)) {
        thread_.giveUp();
        lost_ = true;
    }
    fail(error::objectNotSet, QStringLiteral("Tabulka byla ukončena, protože neodpovídala."));
}

} // namespace zvonika
