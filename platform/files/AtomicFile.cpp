#include "platform/files/AtomicFile.h"

#include "platform/files/Checksum.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace zvonika {

namespace {

[[noreturn]] void fail(int code) {
    throw std::system_error(code, std::generic_category());
}

void check(int result) {
    if (result < 0) fail(errno);
}

constexpr char ending[] = ".tmp";

class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) { check(fd); }
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return fd_; }
    /// Some file systems report a failed write only here.
    void close() { check(::close(std::exchange(fd_, -1))); }

private:
    int fd_;
};

QByteArray encoded(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    if (name.contains('\0')) fail(EILSEQ);
    return name;
}

QByteArray folderOf(const QByteArray& path) {
    const auto slash = path.lastIndexOf('/');
    if (slash < 0) return ".";
    return slash == 0 ? QByteArray("/") : path.left(slash);
}

/// The file behind the symbolic links, which need not exist.
QByteArray behindLinks(QByteArray path) {
    for (int links = 0; links < 40; ++links) {
        struct stat info {};
        if (::lstat(path, &info) < 0 || !S_ISLNK(info.st_mode)) return path;
        QByteArray target(4096, '\0');
        const auto length = ::readlink(path, target.data(), static_cast<std::size_t>(target.size()));
        if (length < 0) fail(errno);
        target.truncate(length);
        path = target.startsWith('/') ? target : folderOf(path) + '/' + target;
    }
    fail(ELOOP);
}

/// Mode and owner of the file as it is; nothing when it does not exist. Replacing must not get round a file's
/// own write protection, nor turn a device into a file.
std::optional<struct stat> existing(const QByteArray& path) {
    struct stat info {};
    if (::stat(path, &info) < 0) {
        if (errno == ENOENT) return {};
        fail(errno);
    }
    if (S_ISDIR(info.st_mode)) fail(EISDIR);
    if (!S_ISREG(info.st_mode)) fail(ENODEV);
    check(::access(path, W_OK));
    return info;
}

constexpr char accessList[] = "system.posix_acl_access";

/// A new file may have got one from its folder: it would open the file to others, under the same mode.
void dropInheritedAccess(const QByteArray& from, int file, bool withAccess) {
    if (!withAccess || ::getxattr(from, accessList, nullptr, 0) < 0) (void)::fremovexattr(file, accessList);
}

/// Where a file system keeps no modes, nothing can be set and nothing need be: a mode that lets nobody in who
/// was not let in before is good enough.
void setMode(int file, mode_t mode) {
    struct stat now {};
    check(::fstat(file, &now));
    if ((now.st_mode & 07777) == mode || ::fchmod(file, mode) == 0) return;
    const int reason = errno;
    const bool unsupported = reason == EOPNOTSUPP || reason == EPERM || reason == ENOSYS;
    if (!unsupported || (now.st_mode & 07777 & ~mode) != 0) fail(reason);
}

/// Access lists and what else hangs on the file, as far as the file system and the user's rights let it.
void copyAttributes(const QByteArray& from, int to, bool withAccess) {
    QByteArray names(64 << 10, '\0');
    const auto length = ::listxattr(from, names.data(), static_cast<std::size_t>(names.size()));
    if (length <= 0) return;
    names.truncate(length);
    QByteArray value(64 << 10, '\0');
    for (const QByteArray& name : names.split('\0')) {
        if (name.isEmpty() || (name == accessList && !withAccess)) continue;
        const auto size = ::getxattr(from, name, value.data(), static_cast<std::size_t>(value.size()));
        if (size >= 0) (void)::fsetxattr(to, name, value.constData(), static_cast<std::size_t>(size), 0);
    }
}

/// How the temporary files of a target begin; its own name could be too long with more around it.
QByteArray temporaryPrefix(const QByteArray& target) {
    const QByteArray name = target.mid(target.lastIndexOf('/') + 1);
    return ".~" + QByteArray::number(crc32(name), 16) + '-';
}

/// A new file beside the target, removed again unless it takes the target's place.
class Temporary {
public:
    Temporary(const QByteArray& target, mode_t mode) : path_(newName(target)), file_(create(mode)) {}
    ~Temporary() {
        if (!placed_) ::unlink(path_);
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    // Giving a file away may not be permitted; the contents matter more. What its group was allowed must not
    // go to another group then.
    void keepRights(const QByteArray& target, const struct stat& info) {
        const bool groupKept = ::fchown(file_.get(), info.st_uid, info.st_gid) == 0 ||
                               ::fchown(file_.get(), uid_t(-1), info.st_gid) == 0;
        mode_t mode = info.st_mode & 07777;
        if (!groupKept) mode = (mode & 0707) | ((mode & 07) << 3);
        dropInheritedAccess(target, file_.get(), groupKept);
        setMode(file_.get(), mode);
        copyAttributes(target, file_.get(), groupKept);
    }

    void write(std::span<const std::uint8_t> bytes) {
        while (!bytes.empty()) {
            const auto written = ::write(file_.get(), bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR) fail(errno);
            if (written == 0) fail(EIO);
            if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
    }

    void finish() {
        check(::fsync(file_.get()));
        file_.close();
    }

    void place(const QByteArray& target) {
        check(::rename(path_, target));
        placed_ = true;
    }

private:
    static QByteArray newName(const QByteArray& target) {
        const auto chance = QRandomGenerator::system()->generate64();
        return folderOf(target) + '/' + temporaryPrefix(target) + QByteArray::number(chance, 36) + ending;
    }
    int create(mode_t mode) const { return ::open(path_, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); }

    QByteArray path_;
    Descriptor file_;
    bool placed_ = false;
};

/// The new name is on the disk only when the folder is. A folder that may not be read, or a file system that
/// cannot flush one, is no failure: the file is complete all the same.
void flushFolder(const QByteArray& folder) {
    const int fd = ::open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    const bool failed = ::fsync(fd) < 0 && (errno == EIO || errno == ENOSPC);
    const int reason = errno;
    ::close(fd);
    if (failed) fail(reason);
}

} // namespace

void writeAtomically(const QString& nativePath, std::span<const std::uint8_t> bytes) {
    writeAtomically(nativePath, [bytes](const auto& take) { take(bytes); });
}

void writeAtomically(const QString& nativePath, const BytePieces& contents) {
    const QByteArray target = behindLinks(encoded(nativePath));
    const auto before = existing(target);
    Temporary file(target, before ? before->st_mode & 0777 : 0666);
    if (before) file.keepRights(target, *before);
    contents([&](std::span<const std::uint8_t> piece) { file.write(piece); });
    file.finish();
    file.place(target);
    flushFolder(folderOf(target));
}

void removeLeftovers(const QString& nativePath) {
    const QByteArray target = behindLinks(encoded(nativePath));
    QDir folder(QFile::decodeName(folderOf(target)));
    const QString pattern = QString::fromLatin1(temporaryPrefix(target) + '*' + ending);
    for (const QString& name : folder.entryList({pattern}, QDir::Files | QDir::Hidden))
        folder.remove(name);
}

} // namespace zvonika
