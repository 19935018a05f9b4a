#pragma once

#include <QObject>
#include <QPointer>

#include <chrono>
#include <memory>
#include <vector>

namespace zvonika {

/// As long as it lives, nothing that the user enters and no timer of the program reaches anything.
///
/// Clicks, keys and the like are dropped. A release whose press came before is put off to the end instead,
/// so that no button stays down. A timer whose event is eaten comes again after its interval, a single-shot
/// one too.
class HeldEvents : public QObject {
public:
    /// `pulse`: wakes an event loop that waits for events, this often.
    explicit HeldEvents(std::chrono::milliseconds pulse);
    ~HeldEvents() override;
    HeldEvents(const HeldEvents&) = delete;
    HeldEvents& operator=(const HeldEvents&) = delete;

    bool eventFilter(QObject* target, QEvent* event) override;

private:
    void putOff(QObject* target, const QEvent& release);

    struct Release {
        QPointer<QObject> target;
        std::unique_ptr<QEvent> event;
    };
    bool pressDropped_ = false, keyDropped_ = false;
    std::vector<Release> putOff_;
};

} // namespace zvonika
