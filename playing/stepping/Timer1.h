#pragma once

#include <QObject>

#include <chrono>

namespace zvonika {

/// The stepping timer as the window shows it. Changed by `Automat` only.
class Timer1 : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    using Interval = std::chrono::milliseconds;

    bool zapnuty() const { return zapnuty_; }
    Interval interval() const { return interval_; }

    void zapni(bool zapnout) {
        if (zapnuty_ == zapnout) return;
        zapnuty_ = zapnout;
        Q_EMIT zmeneno();
    }
    void nastavInterval(Interval interval) {
        if (interval_ == interval) return;
        interval_ = interval;
        Q_EMIT zmeneno();
    }

Q_SIGNALS:
    void zmeneno();

private:
    bool zapnuty_ = false;
    Interval interval_{2000};
};

} // namespace zvonika
