#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <mutex>

namespace zvonika {

/// Brings what the user does in Calc from the threads of the connection to the user-interface thread, several
/// acts in one.
class UserNotices : public CalcObserver {
public:
    /// `deliver` is called by the event loop of the thread that makes this object; `opened` on any thread.
    UserNotices(std::function<void()> deliver, std::function<void(const QString&)> opened);

    void cursorMoved() override;
    void cellsEdited() override;
    void workbookCloses() override { ++acts_; }
    void fileOpened(const QString& nativePath) override { opened_(nativePath); }

    /// How many acts have been heard of, those too that are not delivered.
    unsigned acts() const { return acts_; }

    struct Acts {
        bool edited = false;
        bool moved = false;
    };
    /// What has come since the last time.
    Acts take();
    /// Has what is not yet taken delivered once more.
    void deliverAgain();
    /// Nothing is delivered any more.
    void stop();

private:
    void post();

    std::function<void()> deliver_;
    std::function<void(const QString&)> opened_;
    std::atomic<unsigned> acts_ = 0;
    std::atomic<bool> edited_ = false;
    std::atomic<bool> moved_ = false;
    std::atomic<bool> posted_ = false;
    std::mutex mutex_;
    std::unique_ptr<QObject> receiver_; ///< null once stopped; with it goes what is posted
};

} // namespace zvonika
