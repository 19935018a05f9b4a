#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <string>
#include <vector>

namespace zvonika::bench {

/// Times a start-up from the moment the process was started (environment variable ZVONIKA_BENCH_START:
/// CLOCK_MONOTONIC in nanoseconds; the moment of construction where it is not set) until a window's first
/// frame has reached the display. Then prints one line of JSON and ends the process:
/// {"marks": {"<stage>": ms, ...}, "first_paint": ms, "cpu": ms, "rss_mb": MB}; "cpu" is the
/// processor time up to the first frame.
class StartClock : public QObject {
    Q_OBJECT
public:
    StartClock();

    /// Notes how long after the start a stage of the start-up was over.
    void mark(const char* stage);
    /// Watches for the first frame of this window. It may be shown already, but not painted.
    void watch(QWidget& window);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    double elapsed() const;
    void finish();
    void report() const;

    struct Mark {
        std::string stage;
        double ms;
    };

    long long start_;
    std::vector<Mark> marks_;
    QPointer<QWidget> window_;
    double firstPaint_ = 0;
    double processor_ = 0;
};

} // namespace zvonika::bench
