#include "spreadsheet/libreoffice/CalcCalls.h"

#include "platform/Log.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <QElapsedTimer>

#include <utility>

namespace zvonika {

CalcCalls::CalcCalls(const WaitingCustoms& customs, std::function<void()> waitOver, const Patience& patience)
    : waitOver_(std::move(waitOver)), patience_(patience), calls_({[this, sign = customs.sign] {
                                                                       felt_ = true;
                                                                       if (sign) sign();
                                                                   },
                                                                   customs.waitOn, customs.breakOff}) {}

void CalcCalls::attach(std::shared_ptr<CalcEngine> engine, std::shared_ptr<UserNotices> notices,
                       std::function<bool()> running) {
    running_ = std::move(running);
    notices_ = std::move(notices);
    engine_ = std::move(engine);
}

void CalcCalls::detach() {
    try {
        carryOut(patience_.cell, [engine = std::exchange(engine_, nullptr)] {});
    } catch (const std::exception&) { // a call that never came back holds the engine, which goes with it
    }
}

bool CalcCalls::alive() const {
    return engine_ && engine_->connected() && running_();
}

void CalcCalls::requireRunning() const {
    if (!alive())
        throw AutomationError(error::objectNotSet, QStringLiteral("LibreOffice Calc už není spuštěn."));
}

void CalcCalls::carryOut(std::chrono::milliseconds patience, const std::function<void()>& work, Where where) {
    const auto over = qScopeGuard([this] {
        if (std::exchange(felt_, false) && waitOver_) waitOver_();
    });
    QElapsedTimer clock;
    clock.start();
    try {
        calls_.run(patience, work);
    } catch (const RuntimeError& failure) {
        qCInfo(callsLog) << where.function_name() << "chyba" << failure.number() << "po" << clock.elapsed()
                         << "ms";
        throw;
    }
    qCInfo(callsLog) << where.function_name() << clock.elapsed() << "ms";
}

} // namespace zvonika
