#include "platform/files/AtomicFile.h"
#include "platform/files/Checksum.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace zvonika {

namespace {

[[noreturn]] void fail(DWORD code) {
    throw std::system_error(static_cast<int>(code), std::system_category());
}

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
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
    const QString name = temporaryPrefix(target) + chance + QStringLiteral(".tmp");
    return QDir::toNativeSeparators(QFileInfo(target).absolutePath() + QLatin1Char('/') + name);
}

/// The file behind the symbolic links, which need not exist.
QString behindLinks(const QString& nativePath) {
    const QFileInfo given(nativePath);
    const QString canonical = given.canonicalFilePath();
    const QString target = !canonical.isEmpty() ? canonical
                           : given.isSymLink()  ? given.symLinkTarget()
                                                : nativePath;
    return QDir::toNativeSeparators(target);
}

/// A new file beside the target, removed again unless it takes the target's place.
class Temporary {
public:
    explicit Temporary(const QString& target)
        : path_(temporaryName(target)), file_(CreateFileW(wide(path_), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                                          FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (file_ == INVALID_HANDLE_VALUE) fail(GetLastError());
    }
    ~Temporary() {
        close();
        if (!placed_) DeleteFileW(wide(path_));
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void write(std::span<const std::uint8_t> bytes) { writeAll(file_, bytes); }
    void finish() {
        if (!FlushFileBuffers(file_)) fail(GetLastError());
        close();
    }

    /// ReplaceFile keeps rights and owner of the file that is there.
    void place(const QString& target) {
        const bool exists = QFileInfo::exists(target);
        const BOOL done = exists ? ReplaceFileW(wide(target), wide(path_), nullptr,
                                                REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                                 : MoveFileExW(wide(path_), wide(target), MOVEFILE_WRITE_THROUGH);
        if (!done) fail(GetLastError());
        placed_ = true;
    }

private:
    void close() {
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
    }

    QString path_;
    HANDLE file_;
    bool placed_ = false;
};

} // namespace

void writeAtomically(const QString& nativePath, std::span<const std::uint8_t> bytes) {
    writeAtomically(nativePath, [bytes](const auto& take) { take(bytes); });
}

void writeAtomically(const QString& nativePath, const BytePieces& contents) {
    const QString target = behindLinks(nativePath);
    if (QFileInfo(target).isDir()) fail(ERROR_DIRECTORY);
    Temporary file(target);
    contents([&](std::span<const std::uint8_t> piece) { file.write(piece); });
    file.finish();
    file.place(target);
}

void removeLeftovers(const QString& nativePath) {
    const QString target = behindLinks(nativePath);
    QDir folder(QFileInfo(target).absolutePath());
    for (const QString& name :
         folder.entryList({temporaryPrefix(target) + QStringLiteral("*.tmp")}, QDir::Files | QDir::Hidden))
        folder.remove(name);
}

} // namespace zvonika
