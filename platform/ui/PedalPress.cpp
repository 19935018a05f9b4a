#include "platform/ui/PedalPress.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace zvonika {

namespace {

/// Between a release and a press by hand there is more. X11 tells of a held key by such pairs, and of some of
/// them without the mark of a repetition.
constexpr quint64 shortestRelease = 10; // ms

bool isPedal(const QKeyEvent& event) {
    return (event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp) && !event.modifiers();
}

} // namespace

PedalPress::PedalPress(std::function<void()> pressed) : pressed_(std::move(pressed)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PedalPress::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    // Windows hear of a key once, before their widgets.
    if (!watched->isWindowType() || (!press && event->type() != QEvent::KeyRelease)) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (!isPedal(key)) return false;
    if (!press) {
        released_ = key.timestamp();
        return false;
    }
    const bool held = key.isAutoRepeat() || (released_ && key.timestamp() - *released_ < shortestRelease);
    if (!held) pressed_();
    return true;
}

} // namespace zvonika
