#pragma once

#include "spreadsheet/LiveSpreadsheet.h"
#include "spreadsheet/libreoffice/CalcEngine.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <mutex>

namespace zvonika {

/// Brings what the user does in Calc from the threads of the connection to the listener on the user-interface
/// thread, several acts in one.
class UserNotices : public CalcObserver, public std::enable_shared_from_this<UserNotices> {
public:
    /// Made on the user-interface thread. `held`: asked there whether the listener has to wait; who held it
    /// back calls `deliverAgain`. `opened` and `closed` are called on any thread.
    UserNotices(
        std::function<bool()> held, std::function<void(const QString&)> opened,
        std::function<void(const QString&)> closed = [](const QString&) {});

    void cursorMoved() override;
    void cellsEdited() override;
    void workbookCloses() override { ++acts_; }
    void userCloses(int workbook) override;
    void fileOpened(const QString& nativePath) override { opened_(nativePath); }
    void fileClosed(const QString& nativePath) override { fileClosed_(nativePath); }

    /// How many acts have been heard of, those too that are not delivered. From any thread.
    unsigned acts() const { return acts_; }

    // --- on the user-interface thread ---
    void setListener(SpreadsheetListener* listener) { listener_ = listener; }
    void setWatcher(WorkbookWatcher* watcher) { watcher_ = watcher; }
    /// The user wants nothing more of what is not saved of this workbook.
    void settle(int workbook) {
        if (watcher_) watcher_->workbookSettled(workbook);
    }
    /// Has what the listener has not heard yet delivered once more.
    void deliverAgain();
    /// Nothing is delivered any more.
    void stop();

private:
    void post();
    void deliver();
    QVector<int> takeClosed();

    std::function<bool()> held_;
    std::function<void(const QString&)> opened_, fileClosed_;
    std::atomic<unsigned> acts_ = 0;
    std::atomic<bool> edited_ = false;
    std::atomic<bool> moved_ = false;
    std::atomic<bool> posted_ = false;
    std::mutex mutex_;
    QVector<int> closed_;
    std::unique_ptr<QObject> receiver_; ///< null once stopped; with it goes what is posted
    SpreadsheetListener* listener_ = nullptr;
    WorkbookWatcher* watcher_ = nullptr;
};

} // namespace zvonika
