#pragma once

#include "tests/support/System.h"

#ifndef Q_OS_WIN
#include <grp.h>
#endif

namespace zvonika::testing {

#ifdef Q_OS_WIN

template <typename Action>
int asOrdinaryUser(Action action) {
    return action();
}
inline bool giveAway(const QString&) {
    return false;
}

#else

constexpr uid_t nobody = 65534; ///< user and group without rights of their own

/// What `action` gives (0 to 254) when it is done by a user without special rights: in a process of its own
/// where this one is root's. 255 when that cannot be had.
template <typename Action>
int asOrdinaryUser(Action action) {
    if (::geteuid() != 0) return action();
    const pid_t child = ::fork();
    if (child == 0) {
        const bool became = ::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
        ::_exit(became ? action() : 255);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 255;
}

/// Makes another user the owner of a file; false where that is not allowed.
inline bool giveAway(const QString& file) {
    return ::geteuid() == 0 && ::chown(QFile::encodeName(file), nobody, nobody) == 0;
}

#endif

} // namespace zvonika::testing
