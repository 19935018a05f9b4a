#include "platform/files/AtomicFile.h"
#include "platform/files/Checksum.h"
#include "platform/files/Patience.h"
#include "platform/files/Replacement.h"
#include "platform/files/SetAsideFile.h"
#include "platform/files/SystemFile.h"
#include "platform/files/WindowsErrors.h"
#include "platform/files/WindowsPath.h"

#include <QRandomGenerator>

#include <algorithm>

namespace zvonika {

namespace {

[[noreturn]] void fail(DWORD code) {
    throw std::system_error(windowsError(code));
}

void writeAll(HANDLE file, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const auto portion = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 20));
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), portion, &written, nullptr)) fail(GetLastError());
        bytes = bytes.subspan(written);
    }
}

/// How the temporary files of a target begin; its own name could be too long with more around it.
QString temporaryPrefix(const QString& target) {
    return QStringLiteral(".~%1-").arg(crc32(QFileInfo(target).fileName().toUtf8()), 0, 16);
}

QString temporaryName(const QString& target) {
    const auto chance = QString::number(QRandomGenerator::system()->generate64(), 36);
    return QFileInfo(target).absolutePath() + QLatin1Char('/') + temporaryPrefix(target) + chance +
           QStringLiteral(".tmp");
}

/// The file behind the symbolic links, which need not exist.
QString behindLinks(const QString& nativePath) {
    QFileInfo file(nativePath);
    for (int links = 0; file.isSymLink(); ++links) {
        if (links == 40) fail(ERROR_CANT_RESOLVE_FILENAME);
        file = QFileInfo(file.symLinkTarget());
    }
    return file.absoluteFilePath();
}

/// Replacing must not get round a file's own write protection, nor turn a folder or a device into a file.
void checkTarget(const QString& target) {
    if (target.contains(QChar(u'\0'))) fail(ERROR_INVALID_NAME);
    if (QFileInfo(target).fileName().size() > 255) fail(ERROR_FILENAME_EXCED_RANGE);
    const QFileInfo above(QFileInfo(target).absolutePath());
    if (above.exists() && !above.isDir()) fail(ERROR_DIRECTORY);
    const DWORD attributes = GetFileAttributesW(WindowsPath(target));
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) fail(ERROR_ACCESS_DENIED);
    if ((attributes & FILE_ATTRIBUTE_DEVICE) != 0)
        throw std::system_error(std::make_error_code(std::errc::no_such_device));
}

class Disk : public DiskSteps {
public:
    bool exists(const QString& path) override {
        return GetFileAttributesW(WindowsPath(path)) != INVALID_FILE_ATTRIBUTES;
    }
    unsigned long replace(const QString& target, const QString& fresh, const QString& backup) override {
        return failureOf(ReplaceFileW(WindowsPath(target), WindowsPath(fresh), WindowsPath(backup),
                                      REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr));
    }
    unsigned long move(const QString& from, const QString& to, bool over) override {
        const DWORD flags = MOVEFILE_WRITE_THROUGH | (over ? MOVEFILE_REPLACE_EXISTING : 0);
        return failureOf(MoveFileExW(WindowsPath(from), WindowsPath(to), flags));
    }
    void remove(const QString& path) override { removeFile(path); }

private:
    static unsigned long failureOf(BOOL done) { return done ? ERROR_SUCCESS : GetLastError(); }
};

/// A new hidden file beside the target, removed again unless it is complete.
class Temporary {
public:
    explicit Temporary(const QString& target)
        : path_(temporaryName(target)), file_(CreateFileW(WindowsPath(path_), GENERIC_WRITE, 0, nullptr,
                                                          CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr)) {
        if (file_ == INVALID_HANDLE_VALUE) fail(GetLastError());
    }
    ~Temporary() {
        close();
        if (!complete_) DeleteFileW(WindowsPath(path_));
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void write(std::span<const std::uint8_t> bytes) { writeAll(file_, bytes); }
    /// From now on it is a copy that must not get lost.
    void finish() {
        if (!FlushFileBuffers(file_)) fail(GetLastError());
        close();
        complete_ = true;
        SetFileAttributesW(WindowsPath(path_), FILE_ATTRIBUTE_NORMAL);
    }
    const QString& path() const { return path_; }

private:
    void close() {
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
    }

    QString path_;
    HANDLE file_;
    bool complete_ = false;
};

} // namespace

void writeAtomically(const QString& nativePath, std::span<const std::uint8_t> bytes) {
    writeAtomically(nativePath, [bytes](const auto& take) { take(bytes); });
}

// The old file waits under its own name in a folder, where the next start finds it if the program does not
// come to an end.
void writeAtomically(const QString& nativePath, const BytePieces& contents) {
    const QString target = behindLinks(nativePath);
    checkTarget(target);
    Temporary file(target);
    contents([&](std::span<const std::uint8_t> piece) { file.write(piece); });
    file.finish();
    const QString aside = newReplacedFolder(target);
    const bool replaces = QFileInfo::exists(target);
    if (const auto refused = replaces ? makeHiddenFolder(aside) : std::error_code()) {
        removeFile(file.path());
        throw std::system_error(refused);
    }
    Disk disk;
    const auto error =
        putInPlace(disk, Patience(), target, file.path(), aside + u'/' + QFileInfo(target).fileName());
    if (replaces) RemoveDirectoryW(WindowsPath(aside)); // an empty one
    if (error != 0) fail(error);
}

void removeLeftovers(const QString& nativePath) {
    const QString target = behindLinks(nativePath);
    QDir folder(QFileInfo(target).absolutePath());
    for (const QString& name :
         folder.entryList({temporaryPrefix(target) + QStringLiteral("*.tmp")}, QDir::Files | QDir::Hidden))
        folder.remove(name);
}

} // namespace zvonika
