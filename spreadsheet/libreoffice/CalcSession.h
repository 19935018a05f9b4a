#pragma once

#include "spreadsheet/libreoffice/CalcCalls.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"
#include "spreadsheet/libreoffice/OfficeProcess.h"
#include "spreadsheet/libreoffice/OpenFiles.h"

namespace zvonika {

/// One Calc from its start to its end: its process with the guardian, the plug-in, the connection. On a call
/// that takes too long the user is asked whether to wait or to end Calc.
class CalcSession {
public:
    /// Starts Calc; `folder`: native, where its file choices begin. AutomationError 429 with the reason when
    /// that fails.
    CalcSession(const LibreOfficeSurroundings& surroundings, const QString& folder);
    /// Ends Calc, if it runs; unsaved changes are lost.
    ~CalcSession();
    CalcSession(const CalcSession&) = delete;
    CalcSession& operator=(const CalcSession&) = delete;

    CalcCalls& calls() { return calls_; }
    UserNotices& notices() { return *notices_; }
    OpenFiles& files() { return *files_; }

    bool ended() const { return ended_; }
    /// Ends Calc without asking anybody. Throws nothing.
    void end();

private:
    void connectTo(const QString& pipe);
    std::shared_ptr<CalcEngine> connected(const QString& pipe);
    bool wantsToWait() const;
    bool quits();

    LibreOfficeSurroundings surroundings_;
    bool ended_ = false;
    std::shared_ptr<OfficeProcess> process_;
    std::shared_ptr<OpenFiles> files_;
    std::shared_ptr<UserNotices> notices_;
    CalcCalls calls_;
};

} // namespace zvonika
