#pragma once

#include "tests/support/System.h"

#include <QCoreApplication>
#include <QProcess>
#include <QString>

#include <cstdio>
#include <memory>
#include <vector>

namespace zvonika::testing {

/// Another process, which does something with a file, says whether it came off and then stays until it is
/// killed: a copy of this one, on Windows the same program started anew.
class OtherProcess {
public:
    using Role = bool (*)(const QString& file);

    OtherProcess(Role role, const QString& file);
    ~OtherProcess();
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// Ends it, but does not take its number from the list of processes.
    void kill();
    qint64 pid() const;
    bool held = false; ///< it came off

    /// Every role is made known once, `inline const bool known = OtherProcess::know(role)`.
    static bool know(Role role) {
        roles().push_back(role);
        return true;
    }
    /// Of a program that was started for a role: plays it and does not return.
    static void playIfAsked(int argc, char** argv);

private:
    static std::vector<Role>& roles() {
        static std::vector<Role> roles;
        return roles;
    }

#ifdef Q_OS_WIN
    QProcess process_;
#else
    pid_t pid_ = 0;
#endif
};

#ifdef Q_OS_WIN

inline OtherProcess::OtherProcess(Role role, const QString& file) {
    const auto number = std::find(roles().begin(), roles().end(), role) - roles().begin();
    process_.start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("--role"), QString::number(number), file});
    char answer = 0;
    held = process_.waitForReadyRead(20000) && process_.read(&answer, 1) == 1 && answer == 'h';
}

inline OtherProcess::~OtherProcess() {
    kill();
}

inline void OtherProcess::kill() {
    process_.kill();
    process_.waitForFinished();
}

inline qint64 OtherProcess::pid() const {
    return process_.processId();
}

inline void OtherProcess::playIfAsked(int argc, char** argv) {
    if (argc < 4 || qstrcmp(argv[1], "--role") != 0) return;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool done = roles().at(arguments[2].toUInt())(arguments[3]);
    std::fputc(done ? 'h' : '-', stdout);
    std::fflush(stdout);
    for (;;)
        ::Sleep(INFINITE);
}

#else

inline OtherProcess::OtherProcess(Role role, const QString& file) {
    int ready[2];
    if (::pipe(ready) != 0) return;
    pid_ = ::fork();
    if (pid_ == 0) {
        (void)!::write(ready[1], role(file) ? "h" : "-", 1);
        for (;;)
            ::pause();
    }
    char answer = 0;
    held = ::read(ready[0], &answer, 1) == 1 && answer == 'h';
    ::close(ready[0]);
    ::close(ready[1]);
}

inline OtherProcess::~OtherProcess() {
    kill();
    ::waitpid(pid_, nullptr, 0);
}

inline void OtherProcess::kill() {
    ::kill(pid_, SIGKILL);
    siginfo_t info;
    ::waitid(P_PID, id_t(pid_), &info, WEXITED | WNOWAIT);
}

inline qint64 OtherProcess::pid() const {
    return pid_;
}

inline void OtherProcess::playIfAsked(int, char**) {}

#endif

} // namespace zvonika::testing
