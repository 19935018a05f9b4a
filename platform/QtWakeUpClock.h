#pragma once

#include "platform/WakeUpClock.h"

#include <QTimer>

namespace zvonika {

/// The steady clock of the system and the event loop of the thread that makes this object.
class QtWakeUpClock : public WakeUpClock {
public:
    QtWakeUpClock();

    Time now() const override;
    void wakeAt(Time when, std::function<void()> call) override;
    void cancel() override;

private:
    void start();
    void fire();

    QTimer timer_;
    Time when_{};
    std::function<void()> call_;
};

} // namespace zvonika
