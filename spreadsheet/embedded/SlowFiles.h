#pragma once

#include "platform/waiting/PatientCalls.h"

#include <QString>

#include <chrono>
#include <functional>

namespace zvonika {

class Dialogs;

/// Work on files that may lie where nothing answers for a while: in a folder of the network, on a disk that
/// has to wake up. It is carried out beside the user-interface thread, whose window stays painted and takes
/// no input meanwhile; where there is no window (`keepWindow`), at once. Throws what the work throws.
class SlowFiles {
public:
    /// `dialogs` outlives this; `patience`: how long a file may take before the user is asked.
    explicit SlowFiles(Dialogs& dialogs,
                       std::chrono::milliseconds patience = std::chrono::milliseconds(30000))
        : dialogs_(dialogs), patience_(patience) {}

    /// There is a window to be kept painted from now on. What tells its user that he has to wait: about ten
    /// times a second, and when it is over.
    void keepWindow(std::function<void()> waiting, std::function<void()> over);

    /// For who only looks at `nativePath`. `reading` shares whatever it works on: it is left behind, and 1004
    /// raised, when the user does not want to wait for it.
    void read(const QString& nativePath, std::function<void()> reading);
    /// For who writes. This is waited for to its end, as nobody knows what half of it leaves.
    void write(const std::function<void()>& writing);

private:
    void carryOut(std::function<bool()> waitOn, std::function<void()> work);
    bool wantsToWait(const QString& nativePath);

    Dialogs& dialogs_;
    std::chrono::milliseconds patience_;
    std::function<void()> waiting_, over_; ///< null without a window
};

} // namespace zvonika
