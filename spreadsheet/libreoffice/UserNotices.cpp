#include "spreadsheet/libreoffice/UserNotices.h"

namespace zvonika {

UserNotices::UserNotices(std::function<bool()> held, std::function<void(const QString&)> opened,
                         std::function<void(const QString&)> closed)
    : held_(std::move(held)), opened_(std::move(opened)), fileClosed_(std::move(closed)),
      receiver_(std::make_unique<QObject>()) {}

void UserNotices::cursorMoved() {
    ++acts_;
    moved_ = true;
    post();
}

void UserNotices::cellsEdited() {
    ++acts_;
    edited_ = true;
    post();
}

void UserNotices::userCloses(int workbook) {
    {
        const std::scoped_lock lock(mutex_);
        closed_.append(workbook);
    }
    post();
}

QVector<int> UserNotices::takeClosed() {
    const std::scoped_lock lock(mutex_);
    return std::exchange(closed_, {});
}

void UserNotices::deliverAgain() {
    {
        const std::scoped_lock lock(mutex_);
        if (!edited_ && !moved_ && closed_.isEmpty()) return;
    }
    posted_ = false;
    post();
}

void UserNotices::stop() {
    listener_ = nullptr;
    watcher_ = nullptr;
    const std::scoped_lock lock(mutex_);
    receiver_.reset();
}

void UserNotices::post() {
    if (posted_.exchange(true)) return;
    const std::scoped_lock lock(mutex_);
    if (receiver_)
        QMetaObject::invokeMethod(
            receiver_.get(),
            [weak = weak_from_this()] {
                if (const auto self = weak.lock()) self->deliver();
            },
            Qt::QueuedConnection);
}

// The listener may do anything, down to ending Calc, so each call asks for it anew.
void UserNotices::deliver() {
    if (held_()) return;
    posted_ = false;
    const bool edited = edited_.exchange(false), moved = moved_.exchange(false);
    for (const int workbook : takeClosed())
        settle(workbook);
    if (edited && listener_) listener_->cellsEdited();
    if (moved && listener_) listener_->cursorMoved();
}

} // namespace zvonika
