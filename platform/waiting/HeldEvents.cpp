#include "platform/waiting/HeldEvents.h"

#include <QCoreApplication>

namespace zvonika {

HeldEvents::HeldEvents(std::chrono::milliseconds pulse) {
    QCoreApplication::instance()->installEventFilter(this);
    startTimer(pulse);
}

HeldEvents::~HeldEvents() {
    QCoreApplication::instance()->removeEventFilter(this);
    for (Release& release : putOff_)
        if (release.target) QCoreApplication::postEvent(release.target, release.event.release());
}

bool HeldEvents::eventFilter(QObject* target, QEvent* event) {
    switch (event->type()) {
    case QEvent::Timer:
        return target != this;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return pressDropped_ = true;
    case QEvent::MouseButtonRelease:
        if (!pressDropped_) putOff(target, *event);
        return true;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        return keyDropped_ = true;
    case QEvent::KeyRelease:
        if (!keyDropped_) putOff(target, *event);
        return true;
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::NativeGesture:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        event->ignore(); // else the window takes it for granted
        return true;
    default:
        return false;
    }
}

void HeldEvents::putOff(QObject* target, const QEvent& release) {
    putOff_.push_back({target, std::unique_ptr<QEvent>(release.clone())});
}

} // namespace zvonika
