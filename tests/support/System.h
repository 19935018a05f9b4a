#pragma once

// What tests ask of the system beyond Qt, with a second face on Windows.

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#ifdef Q_OS_WIN
/// Leaves a case out on Windows and says why.
#define SKIPPED_ON_WINDOWS(reason) GTEST_SKIP() << "on Windows: " reason
/// Stands for a case whose text does not compile there.
#define NOT_ON_WINDOWS(suite, name, reason)                                                                  \
    TEST(suite##OnWindows, name) {                                                                           \
        GTEST_SKIP() << "on Windows: " reason;                                                               \
    }
#else
#define SKIPPED_ON_WINDOWS(reason) static_cast<void>(0)
#endif

namespace zvonika::testing {

#ifdef Q_OS_WIN

using mode_t = unsigned;

// Windows gives rights by lists, which these tests do not write.
inline void setMode(const QString&, mode_t) {}
struct Watch {
    static constexpr bool counts = false;
};
struct UserMask {
    static constexpr bool counts = false;
    explicit UserMask(mode_t) {}
};

/// A link that the system itself follows; false where there are none.
inline bool linkTo(const QString&, const QString&) {
    return false;
}
inline bool makePipe(const QString&) {
    return false;
}

#else

/// The process ends when it lives for a minute: what must not be read would be read for ever.
class Watch {
public:
    static constexpr bool counts = true;
    Watch() { ::alarm(60); }
    ~Watch() { ::alarm(0); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

/// What new files are not given of rights, for as long as it lives.
class UserMask {
public:
    static constexpr bool counts = true;
    explicit UserMask(mode_t mask) : before_(::umask(mask)) {}
    ~UserMask() { ::umask(before_); }
    UserMask(const UserMask&) = delete;
    UserMask& operator=(const UserMask&) = delete;

private:
    mode_t before_;
};

inline void setMode(const QString& path, mode_t mode) {
    EXPECT_EQ(::chmod(QFile::encodeName(path), mode), 0) << path.toStdString();
}

inline bool linkTo(const QString& target, const QString& name) {
    return ::symlink(QFile::encodeName(target), QFile::encodeName(name)) == 0;
}
inline bool makePipe(const QString& path) {
    return ::mkfifo(QFile::encodeName(path), 0666) == 0;
}

#endif

} // namespace zvonika::testing
