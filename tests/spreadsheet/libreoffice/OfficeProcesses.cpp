#include "tests/spreadsheet/libreoffice/OfficeProcesses.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace zvonika::testing {

namespace {

QList<QByteArray> commandLine(const QString& process) {
    QFile file(QStringLiteral("/proc/%1/cmdline").arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\0') : QList<QByteArray>();
}

QList<pid_t> processes(const QByteArray& program, const QString& profiles) {
    QList<pid_t> found;
    for (const QString& process : QDir("/proc").entryList(QDir::Dirs)) {
        const auto parts = commandLine(process);
        const bool own = std::any_of(parts.begin(), parts.end(), [&](const QByteArray& part) {
            return part.contains(profiles.toUtf8());
        });
        if (own && parts.first().endsWith(program)) found << process.toInt();
    }
    return found;
}

} // namespace

QList<pid_t> officesOf(const QString& profiles) {
    return processes("/soffice.bin", profiles);
}

QList<pid_t> guardiansOf(const QString& profiles) {
    return processes("/zvonika-hlidac", profiles);
}

bool allGone(const QString& profiles) {
    return QTest::qWaitFor([&] { return officesOf(profiles).isEmpty() && guardiansOf(profiles).isEmpty(); },
                           30000);
}

QStringList locksIn(const QString& folder) {
    return QDir(folder).entryList({".~lock.*"}, QDir::Files | QDir::Hidden);
}

} // namespace zvonika::testing
