#include "spreadsheet/libreoffice/UserNotices.h"

namespace zvonika {

UserNotices::UserNotices(std::function<void()> deliver, std::function<void(const QString&)> opened)
    : deliver_(std::move(deliver)), opened_(std::move(opened)), receiver_(std::make_unique<QObject>()) {}

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

UserNotices::Acts UserNotices::take() {
    posted_ = false;
    return {edited_.exchange(false), moved_.exchange(false)};
}

void UserNotices::deliverAgain() {
    if (!edited_ && !moved_) return;
    posted_ = false;
    post();
}

void UserNotices::stop() {
    const std::scoped_lock lock(mutex_);
    receiver_.reset();
}

void UserNotices::post() {
    if (posted_.exchange(true)) return;
    const std::scoped_lock lock(mutex_);
    if (receiver_)
        QMetaObject::invokeMethod(
            receiver_.get(), [this] { deliver_(); }, Qt::QueuedConnection);
}

} // namespace zvonika
