#pragma once

#include <QObject>

#include <functional>
#include <optional>

namespace zvonika {

/// Hears of each fresh press of PageDown or PageUp, the keys of a page-turner pedal, anywhere in the program,
/// as long as it lives. A key that is held is no fresh press.
class PedalPress : public QObject {
public:
    explicit PedalPress(std::function<void()> pressed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> pressed_;
    std::optional<quint64> released_; ///< when, in the window system's ms
};

} // namespace zvonika
