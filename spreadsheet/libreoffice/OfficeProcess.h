#pragma once

#include "spreadsheet/libreoffice/ChildProcess.h"
#include "spreadsheet/libreoffice/Profile.h"

#include <QString>

#include <chrono>
#include <memory>
#include <mutex>

namespace zvonika {

struct Installation;

/// One running office of our own, with its guardian process, which ends it with this program, however that
/// ends, and clears away what a killed office leaves behind.
class OfficeProcess {
public:
    /// Starts it; it accepts connections on the pipe of that name a little later. AutomationError 429 when
    /// nothing can be started.
    OfficeProcess(const Installation& installation, const Profile& profile, const QString& pipe);
    /// Ends it, at once.
    ~OfficeProcess();
    OfficeProcess(const OfficeProcess&) = delete;
    OfficeProcess& operator=(const OfficeProcess&) = delete;

    const QString& profileUrl() const { return profileUrl_; } ///< of the office's profile
    bool running() const { return guardian_->running(); }     ///< from any thread
    /// True when it has ended, which it may take this long for.
    bool waitForEnd(std::chrono::milliseconds time) const { return guardian_->waitForEnd(time); }
    /// Ends it at once; unsaved changes are lost.
    void end();
    /// The office is up: it holds by now what it would leave behind.
    void tellStarted();
    /// The office has a document open. From any thread.
    void tellDocument(const QString& nativePath);

private:
    void tell(const QByteArray& line);

    QString profileUrl_;
    std::unique_ptr<ChildProcess> guardian_;
    std::mutex mutex_;
    int line_ = -1; ///< to the guardian; -1 once closed
};

} // namespace zvonika
