#include "platform/files/ProcessStart.h"

#include <QFile>
#include <QStringList>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#endif

namespace zvonika {

#ifdef Q_OS_WIN

std::optional<QString> processStart(qint64 pid) {
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(pid));
    if (!process) return GetLastError() == ERROR_ACCESS_DENIED ? std::optional(QString()) : std::nullopt;
    DWORD exitCode = 0;
    FILETIME begun{}, ended{}, kernel{}, user{};
    const bool runs = GetExitCodeProcess(process, &exitCode) && exitCode == STILL_ACTIVE;
    const bool known = GetProcessTimes(process, &begun, &ended, &kernel, &user) != 0;
    CloseHandle(process);
    if (!runs) return {};
    return known ? QStringLiteral("%1.%2").arg(begun.dwHighDateTime).arg(begun.dwLowDateTime) : QString();
}

#else

std::optional<QString> processStart(qint64 pid) {
    if (pid <= 0 || (::kill(static_cast<pid_t>(pid), 0) < 0 && errno == ESRCH)) return {};
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly)) return QString();
    // "number (name) state ..."; the name may hold anything, blanks and brackets too.
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype state = 0, start = 19;
    if (fields.size() <= start) return QString();
    const bool dead = fields[state] == "Z" || fields[state] == "X";
    return dead ? std::nullopt : std::optional(QString::fromLatin1(fields[start]));
}

#endif

} // namespace zvonika
