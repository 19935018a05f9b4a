#include "spreadsheet/journal/JournalFile.h"

#include "platform/files/RegularDescriptor.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace zvonika {

namespace {

constexpr int closed = -1;
constexpr qint64 largestJournal = qint64{1} << 30;

void check(int result) {
    if (result < 0) throw std::system_error(errno, std::generic_category());
}

void writeAll(int file, qint64 offset, const QByteArray& bytes) {
    for (qint64 done = 0; done < bytes.size();) {
        const auto written =
            ::pwrite(file, bytes.constData() + done, std::size_t(bytes.size() - done), offset + done);
        if (written < 0 && errno == EINTR) continue;
        check(written < 0 ? -1 : 0);
        if (written == 0) throw std::system_error(EIO, std::generic_category());
        done += written;
    }
}

/// The name of a new file is on the disk only when the folder is. A file system that cannot flush folders
/// says so and is taken as it is.
void flushFolder(const QString& path) {
    const int folder =
        ::open(QFile::encodeName(QFileInfo(path).absolutePath()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    check(folder);
    const int failure = ::fsync(folder) < 0 ? errno : 0;
    ::close(folder);
    if (failure != 0 && failure != EINVAL && failure != ENOTSUP)
        throw std::system_error(failure, std::generic_category());
}

/// What another user has put here is no journal of this one.
bool isOurs(int file) {
    struct stat info {};
    return ::fstat(file, &info) == 0 && info.st_uid == ::geteuid();
}

/// Otherwise it is ours from now on; on a file system without locks, everybody's.
bool isLockedByOther(int file) {
    return ::flock(file, LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK;
}

/// Also a file that has been deleted or renamed before it was locked has a lock to give.
bool isStillThere(int file, const QString& path) {
    struct stat here {};
    struct stat there {};
    return ::fstat(file, &here) == 0 && ::lstat(QFile::encodeName(path), &there) == 0 &&
           here.st_ino == there.st_ino && here.st_dev == there.st_dev;
}

} // namespace

JournalFile JournalFile::create(const QString& path, const QByteArray& contents) {
    const int file = ::open(QFile::encodeName(path), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    check(file);
    JournalFile result(path, file);
    // Another program that looks for journals may have been quicker; it clears the empty file away.
    if (isLockedByOther(file) || !isStillThere(file, path))
        throw std::system_error(EEXIST, std::generic_category());
    try {
        writeAll(file, 0, contents);
    } catch (...) {
        result.remove();
        throw;
    }
    return result;
}

std::optional<JournalFile> JournalFile::open(const QString& path, std::error_code* failure) {
    const int file = openRegular(QFile::encodeName(path), Links::Refuse, largestJournal, O_RDWR);
    if (file < 0 && failure && errno != ENOENT) *failure = {errno, std::generic_category()};
    if (file < 0) return {};
    JournalFile result(path, file);
    if (!isOurs(file) || isLockedByOther(file) || !isStillThere(file, path)) return {};
    result.torn_ = true;
    return result;
}

JournalFile::JournalFile(JournalFile&& other) noexcept
    : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, closed)), torn_(other.torn_),
      named_(other.named_) {}

JournalFile& JournalFile::operator=(JournalFile&& other) noexcept {
    std::swap(path_, other.path_);
    std::swap(handle_, other.handle_);
    std::swap(torn_, other.torn_);
    std::swap(named_, other.named_);
    return *this;
}

JournalFile::~JournalFile() {
    close();
}

QByteArray JournalFile::readAll() const {
    struct stat info {};
    check(::fstat(handle_, &info));
    if (info.st_size > largestJournal) throw std::system_error(EFBIG, std::generic_category());
    QByteArray bytes(qsizetype(info.st_size), Qt::Uninitialized);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const auto read = ::pread(handle_, bytes.data() + done, std::size_t(bytes.size() - done), done);
        check(read < 0 ? -1 : 0);
        if (read == 0) break;
        done += read;
    }
    bytes.truncate(done);
    return bytes;
}

void JournalFile::appendAt(qint64 size, const QByteArray& bytes) {
    if (torn_) check(::ftruncate(handle_, size));
    torn_ = true;
    writeAll(handle_, size, bytes);
    torn_ = false;
}

void JournalFile::flush() {
    torn_ = true;
    check(named_ ? ::fdatasync(handle_) : ::fsync(handle_));
    torn_ = false;
    if (!named_) flushFolder(path_);
    named_ = true;
}

void JournalFile::remove() {
    if (handle_ == closed) return;
    ::unlink(QFile::encodeName(path_));
    close();
}

bool JournalFile::moveTo(const QString& path) {
    const bool moved = ::rename(QFile::encodeName(path_), QFile::encodeName(path)) == 0;
    if (moved) close();
    return moved;
}

void JournalFile::close() {
    if (handle_ != closed) ::close(std::exchange(handle_, closed));
}

} // namespace zvonika
