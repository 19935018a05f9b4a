#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>

#ifndef Q_OS_WIN
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

namespace zvonika::testing {

/// What another user of the machine can put under a name that the program is going to open. Whoever opens it
/// as if it were a file waits or reads for ever.
struct Neighbour {
    const char* what;
    bool (*make)(const QByteArray& utf8Path);
    bool put(const QString& path) const;
};

inline bool Neighbour::put(const QString& path) const {
    return make(path.toUtf8());
}

namespace neighbour {

inline bool folder(const QByteArray& path) {
    return QDir().mkdir(QString::fromUtf8(path));
}
inline bool threeGigabytes(const QByteArray& path) {
    return QFile(QString::fromUtf8(path)).open(QIODevice::WriteOnly) &&
           QFile::resize(QString::fromUtf8(path), qint64{3} << 30);
}

#ifndef Q_OS_WIN
inline bool link(const char* to, const QByteArray& path) {
    return ::symlink(to, path) == 0;
}
inline bool pipe(const QByteArray& path) {
    return ::mkfifo(path, 0666) == 0;
}
inline bool linkToPipe(const QByteArray& path) {
    return pipe(path + ".roura") && link(path + ".roura", path);
}
inline bool socket(const QByteArray& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path)) return false;
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    const int end = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound = ::bind(end, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(end);
    return bound;
}
#endif

} // namespace neighbour

/// On Windows pipes and devices stand in no folder.
inline const Neighbour neighbours[] = {
#ifndef Q_OS_WIN
    {"a pipe", neighbour::pipe},
    {"a link to a pipe", neighbour::linkToPipe},
    {"a socket", neighbour::socket},
    {"a link to nowhere", [](const QByteArray& path) { return neighbour::link("/neni/nic", path); }},
    {"a link to itself", [](const QByteArray& path) { return neighbour::link(path, path); }},
    {"a link to endless zeros", [](const QByteArray& path) { return neighbour::link("/dev/zero", path); }},
    {"a link to the terminal", [](const QByteArray& path) { return neighbour::link("/dev/tty", path); }},
    {"a link to a process's memory",
     [](const QByteArray& path) { return neighbour::link("/proc/self/mem", path); }},
    {"a link to a folder", [](const QByteArray& path) { return neighbour::link("/", path); }},
#endif
    {"a folder", neighbour::folder},
    {"three gigabytes of nothing", neighbour::threeGigabytes},
};

} // namespace zvonika::testing
