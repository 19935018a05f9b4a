#pragma once

#include <QProcess>
#include <QString>

namespace zvonika::testing {

/// A screen of its own for the windows of Calc, and a user's keyboard before it.
class VirtualScreen {
public:
    /// Starts it and makes it the display of this process; false when it cannot be had.
    bool start();
    ~VirtualScreen();

    /// Presses keys ("ctrl+w", "Return") in the visible window whose title contains `title`, once there is
    /// one. False when none came up.
    static bool press(const QString& title, const QStringList& keys);
    static bool type(const QString& title, const QString& text);
    static bool hasWindow(const QString& title);

private:
    QProcess server_;
};

} // namespace zvonika::testing
