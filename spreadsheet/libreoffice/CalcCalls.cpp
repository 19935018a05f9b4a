#include "spreadsheet/libreoffice/CalcCalls.h"

#include "platform/Log.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <QElapsedTimer>

#include <utility>

namespace zvonika {

struct CalcCalls::Sign {
    void show() {
        felt = true;
        if (wait) wait();
    }
    void end() {
        if (std::exchange(felt, false) && over) over();
    }

    std::function<void()> wait, over;
    bool felt = false;
};

CalcCalls::CalcCalls(const WaitingCustoms& customs, std::function<void()> waitOver, const Patience& patience)
    : sign_(std::make_shared<Sign>()), patience_(patience),
      calls_({[sign = sign_] { sign->show(); }, customs.waitOn, customs.breakOff}) {
    sign_->wait = customs.sign;
    sign_->over = std::move(waitOver);
}

void CalcCalls::attach(std::shared_ptr<CalcEngine> engine, std::shared_ptr<UserNotices> notices,
                       std::function<bool()> running) {
    running_ = std::move(running);
    notices_ = std::move(notices);
    engine_ = std::move(engine);
}

void CalcCalls::detach() {
    try {
        carryOut(patience_.cell, [engine = std::exchange(engine_, nullptr)] {});
    } catch (...) { // a call that never came back holds the engine, which goes with it
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
    const auto over = qScopeGuard([sign = sign_] { sign->end(); });
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
