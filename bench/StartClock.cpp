#include "bench/StartClock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>

namespace zvonika::bench {

namespace {

long long read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

/// Resident memory of this process in MB; 0 where the system does not tell.
double residentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atof(line.c_str() + 6) / 1024;
    return 0;
}

} // namespace

StartClock::StartClock() {
    const char* given = std::getenv("ZVONIKA_BENCH_START");
    start_ = given ? std::atoll(given) : read(CLOCK_MONOTONIC);
}

double StartClock::elapsed() const {
    return double(read(CLOCK_MONOTONIC) - start_) / 1e6;
}

void StartClock::mark(const char* stage) {
    marks_.push_back({stage, elapsed()});
}

void StartClock::watch(QWidget& window) {
    window_ = &window;
    QCoreApplication::instance()->installEventFilter(this);
}

bool StartClock::eventFilter(QObject* target, QEvent* event) {
    if (event->type() == QEvent::Expose && window_ &&
        target == static_cast<QObject*>(window_->windowHandle()))
        mark("exposed");
    if (event->type() != QEvent::Paint || target != window_) return false;
    mark("painting");
    QCoreApplication::instance()->removeEventFilter(this);
    // The frame is complete and handed to the display when the event that paints it has been handled.
    QMetaObject::invokeMethod(this, &StartClock::finish, Qt::QueuedConnection);
    return false;
}

void StartClock::finish() {
    QGuiApplication::sync();
    firstPaint_ = elapsed();
    processor_ = double(read(CLOCK_PROCESS_CPUTIME_ID)) / 1e6;
    // The rest of the start-up, the other window included, belongs to what stays in memory.
    QCoreApplication::processEvents();
    mark("settled");
    report();
    std::_Exit(0);
}

void StartClock::report() const {
    std::printf("{\"marks\": {");
    for (std::size_t i = 0; i < marks_.size(); ++i)
        std::printf("%s\"%s\": %.2f", i ? ", " : "", marks_[i].stage.c_str(), marks_[i].ms);
    std::printf("}, \"first_paint\": %.2f, \"cpu\": %.2f, \"rss_mb\": %.2f}\n", firstPaint_, processor_,
                residentMegabytes());
    std::fflush(stdout);
}

} // namespace zvonika::bench
