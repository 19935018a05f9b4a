#include "platform/files/ExclusiveFile.h"

#include "platform/files/RegularDescriptor.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zvonika {

namespace {

constexpr mode_t beforeTheMask = 0644;

class Handle {
public:
    explicit Handle(int fd) : fd_(fd) {}
    ~Handle() {
        if (isOpen()) ::close(fd_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    bool isOpen() const { return fd_ >= 0; }
    int get() const { return fd_; }

private:
    int fd_;
};

/// `otherFirst`: the error that another one's work leads to.
Exclusive outcome(int result, int otherFirst) {
    if (result >= 0) return Exclusive::Done;
    return errno == otherFirst ? Exclusive::OtherFirst : Exclusive::Impossible;
}

/// One call: a text this short is not written by halves.
bool fill(int file, const QByteArray& text) {
    return ::write(file, text.constData(), std::size_t(text.size())) == text.size();
}

QByteArray folderBeside(const QByteArray& path) {
    return path.left(path.lastIndexOf('/') + 1) + '.';
}

/// A file without a name gets one when it is written; nothing is left of a process that dies before.
Exclusive makeWhole(const QByteArray& path, const QByteArray& text) {
    const Handle file(::open(folderBeside(path), O_TMPFILE | O_WRONLY | O_CLOEXEC, beforeTheMask));
    if (!file.isOpen() || !fill(file.get(), text)) return Exclusive::Impossible;
    const QByteArray nameless = "/proc/self/fd/" + QByteArray::number(file.get());
    return outcome(::linkat(AT_FDCWD, nameless, AT_FDCWD, path, AT_SYMLINK_FOLLOW), EEXIST);
}

Exclusive makeInPlace(const QByteArray& path, const QByteArray& text) {
    const Handle file(::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, beforeTheMask));
    if (!file.isOpen()) return outcome(-1, EEXIST);
    if (fill(file.get(), text)) return Exclusive::Done;
    ::unlink(path); // a full disk; others could not tell whose it is
    return Exclusive::Impossible;
}

bool isStillAt(const QByteArray& path, int file) {
    struct stat here {};
    struct stat there {};
    return ::fstat(file, &here) == 0 && ::lstat(path, &there) == 0 && here.st_ino == there.st_ino &&
           here.st_dev == there.st_dev;
}

bool holds(int file, const QByteArray& text) {
    QByteArray bytes(text.size() + 1, '\0');
    const auto length = ::pread(file, bytes.data(), std::size_t(bytes.size()), 0);
    return length == text.size() && bytes.startsWith(text);
}

} // namespace

Exclusive makeExclusively(const QString& path, const QByteArray& text) {
    const QByteArray name = QFile::encodeName(path);
    const Exclusive whole = makeWhole(name, text);
    return whole == Exclusive::Impossible ? makeInPlace(name, text) : whole;
}

// Who deletes a file must hold its lock and have found it under its name then: the others come too late.
Exclusive removeExclusively(const QString& path, const QByteArray& text) {
    const QByteArray name = QFile::encodeName(path);
    const Handle file(openRegular(name, Links::Refuse, text.size(), O_RDONLY));
    if (!file.isOpen()) return errno == EACCES ? Exclusive::Impossible : Exclusive::OtherFirst;
    if (::flock(file.get(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK) return Exclusive::OtherFirst;
    if (!isStillAt(name, file.get()) || !holds(file.get(), text)) return Exclusive::OtherFirst;
    return outcome(::unlink(name), ENOENT);
}

} // namespace zvonika
