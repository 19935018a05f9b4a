#include "song/embedded/AtomicFile.h"

#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
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

/// A new file beside the target, removed again unless it takes the target's place.
class Temporary {
public:
    Temporary(const QByteArray& folder, mode_t mode) : path_(newName(folder)), file_(create(mode)) {}
    ~Temporary() {
        if (!placed_) ::unlink(path_);
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void keepRights(const struct stat& info) {
        // Giving a file away may not be permitted; the contents matter more.
        if (::fchown(file_.get(), info.st_uid, info.st_gid) < 0)
            (void)::fchown(file_.get(), uid_t(-1), info.st_gid);
        check(::fchmod(file_.get(), info.st_mode & 07777));
    }

    void write(std::span<const std::uint8_t> bytes) {
        while (!bytes.empty()) {
            const auto written = ::write(file_.get(), bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR) fail(errno);
            if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
        }
        check(::fsync(file_.get()));
        file_.close();
    }

    void place(const QByteArray& target) {
        check(::rename(path_, target));
        placed_ = true;
    }

private:
    static QByteArray newName(const QByteArray& folder) {
        return folder + "/.~" + QByteArray::number(QRandomGenerator::system()->generate64(), 36) + ".tmp";
    }
    int create(mode_t mode) const { return ::open(path_, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); }

    QByteArray path_;
    Descriptor file_;
    bool placed_ = false;
};

/// The new name is on the disk only when the folder is. Some file systems cannot flush a folder; the file is
/// complete then all the same.
void flushFolder(const QByteArray& folder) {
    const int fd = ::open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

void writeAtomically(const QString& nativePath, std::span<const std::uint8_t> bytes) {
    const QByteArray target = behindLinks(encoded(nativePath));
    const QByteArray folder = folderOf(target);
    const auto before = existing(target);
    Temporary file(folder, before ? before->st_mode & 0777 : 0666);
    if (before) file.keepRights(*before);
    file.write(bytes);
    file.place(target);
    flushFolder(folder);
}

} // namespace zvonika
