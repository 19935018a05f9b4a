#pragma once

#include <QString>

namespace zvonika {

/// What the program asks of the desktop.
class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a link with the program that the user has chosen for it. False when there is none.
    virtual bool open(const QString& link) = 0;

    /// Ends the process at once, without any of the program's closing steps.
    virtual void endProcess(int exitCode) = 0;
};

} // namespace zvonika
