#include "app/ui/UkazatelCekani.h"

#include <QGuiApplication>

#include <utility>

namespace zvonika {

namespace {

constexpr int nenapadneCekani = 400; ///< ms

} // namespace

void UkazatelCekani::ceka() {
    if (!cekani_.isValid()) cekani_.start();
    if (ukazan_ || !cekani_.hasExpired(nenapadneCekani)) return;
    ukazan_ = true;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void UkazatelCekani::konec() {
    cekani_.invalidate();
    if (std::exchange(ukazan_, false)) QGuiApplication::restoreOverrideCursor();
}

} // namespace zvonika
