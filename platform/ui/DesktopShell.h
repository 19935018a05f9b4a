#pragma once

#include "platform/Shell.h"

namespace zvonika {

/// The user's desktop. A link handed to it is first brought into the form that a desktop accepts.
class DesktopShell : public Shell {
public:
    bool open(const QString& link) override;
    /// Nothing is flushed, saved or destroyed.
    void endProcess(int exitCode) override;
};

} // namespace zvonika
