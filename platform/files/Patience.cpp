#include "platform/files/Patience.h"

#include "platform/files/WindowsErrors.h"

#include <QThread>

#include <algorithm>

namespace zvonika {

namespace {

constexpr int firstPause = 10, longestPause = 200; // ms

} // namespace

Patience::Patience() : Patience([](int milliseconds) { QThread::msleep(unsigned(milliseconds)); }) {}

unsigned long Patience::ask(const std::function<unsigned long()>& step) const {
    unsigned long error = step();
    for (int waited = 0, pause = firstPause; isPassing(error) && waited < longest;
         pause = std::min(2 * pause, longestPause)) {
        const int now = std::min(pause, longest - waited);
        pause_(now);
        waited += now;
        error = step();
    }
    return error;
}

} // namespace zvonika
