#include "platform/files/Patience.h"
#include "platform/files/WindowsErrors.h"
#include "platform/files/WindowsPath.h"
#include "spreadsheet/journal/JournalFile.h"

#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

namespace zvonika {

namespace {

constexpr qint64 largestJournal = qint64{1} << 30;

void check(BOOL done) {
    if (!done) throw std::system_error(windowsError(GetLastError()));
}

/// Others may look at the file while it is open here: a scanner, a backup. Whose it is, its lock tells.
HANDLE openFile(const QString& path, DWORD access, DWORD disposition) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const WindowsPath name(path);
    HANDLE file = INVALID_HANDLE_VALUE;
    const auto error = Patience().ask([&]() -> unsigned long {
        file = CreateFileW(name, access, everybody, nullptr, disposition,
                           FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        return file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
    });
    SetLastError(error);
    return file;
}

/// Of one byte, far behind all that a journal holds, so that it can be read meanwhile. The system takes it
/// back from a process that dies.
bool lock(HANDLE file) {
    OVERLAPPED place{};
    place.OffsetHigh = 0x40000000;
    return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
}

/// What was deleted while somebody else had it open is in nobody's way.
bool isStillThere(HANDLE file) {
    FILE_STANDARD_INFO info{};
    return GetFileInformationByHandleEx(file, FileStandardInfo, &info, sizeof info) && !info.DeletePending;
}

qint64 sizeOf(HANDLE file) {
    LARGE_INTEGER size{};
    check(GetFileSizeEx(file, &size));
    return size.QuadPart;
}

bool isLinkOrFolder(HANDLE file) {
    FILE_BASIC_INFO info{};
    constexpr DWORD others = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    return !GetFileInformationByHandleEx(file, FileBasicInfo, &info, sizeof info) ||
           (info.FileAttributes & others) != 0;
}

void seek(HANDLE file, qint64 offset) {
    LARGE_INTEGER place;
    place.QuadPart = offset;
    check(SetFilePointerEx(file, place, nullptr, FILE_BEGIN));
}

void writeAll(HANDLE file, const QByteArray& bytes) {
    DWORD written = 0;
    check(WriteFile(file, bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    if (written != DWORD(bytes.size())) throw std::system_error(windowsError(ERROR_DISK_FULL));
}

constexpr DWORD readAndWrite = GENERIC_READ | GENERIC_WRITE;

/// For a step that others would stand in the way of if it were open for that from the beginning.
class ToBeRemoved {
public:
    explicit ToBeRemoved(const QString& path) : file_(openFile(path, DELETE, OPEN_EXISTING)) {}
    ~ToBeRemoved() {
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
    }
    ToBeRemoved(const ToBeRemoved&) = delete;
    ToBeRemoved& operator=(const ToBeRemoved&) = delete;

    bool change(FILE_INFO_BY_HANDLE_CLASS what, void* info, std::size_t size) const {
        return SetFileInformationByHandle(file_, what, info, DWORD(size)) != 0;
    }

private:
    HANDLE file_;
};

bool rename(const ToBeRemoved& file, const QString& path) {
    const WindowsPath target(path);
    const std::size_t length = std::wcslen(target) * sizeof(wchar_t);
    std::vector<std::byte> room(sizeof(FILE_RENAME_INFO) + length);
    auto* info = reinterpret_cast<FILE_RENAME_INFO*>(room.data());
    info->FileNameLength = DWORD(length);
    std::memcpy(info->FileName, static_cast<const wchar_t*>(target), length + sizeof(wchar_t));
    return file.change(FileRenameInfo, info, room.size());
}

} // namespace

JournalFile JournalFile::create(const QString& path, const QByteArray& contents) {
    const HANDLE file = openFile(path, readAndWrite, CREATE_NEW);
    check(file != INVALID_HANDLE_VALUE);
    JournalFile result(path, file);
    // Another program that looks for journals may have been quicker; it clears the empty file away.
    if (!lock(file) || !isStillThere(file))
        throw std::system_error(std::make_error_code(std::errc::file_exists));
    try {
        writeAll(file, contents);
    } catch (...) {
        result.remove();
        throw;
    }
    return result;
}

std::optional<JournalFile> JournalFile::open(const QString& path, std::error_code* failure) {
    if (QFileInfo(path).isDir()) {
        if (failure) *failure = std::make_error_code(std::errc::is_a_directory);
        return {};
    }
    const HANDLE file = openFile(path, readAndWrite, OPEN_EXISTING);
    std::error_code reason = windowsError(file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS);
    JournalFile result(path, file);
    if (!reason && sizeOf(file) > largestJournal) reason = std::make_error_code(std::errc::file_too_large);
    if (reason && reason != std::errc::no_such_file_or_directory && failure) *failure = reason;
    if (reason) return {};
    if (isLinkOrFolder(file) || !lock(file) || !isStillThere(file)) return {};
    return result;
}

JournalFile::JournalFile(JournalFile&& other) noexcept
    : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}

JournalFile& JournalFile::operator=(JournalFile&& other) noexcept {
    std::swap(path_, other.path_);
    std::swap(handle_, other.handle_);
    return *this;
}

JournalFile::~JournalFile() {
    close();
}

QByteArray JournalFile::readAll() const {
    const qint64 size = sizeOf(handle_);
    if (size > largestJournal) throw std::system_error(windowsError(ERROR_FILE_TOO_LARGE));
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    DWORD read = 0;
    seek(handle_, 0);
    check(ReadFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr));
    bytes.truncate(read);
    return bytes;
}

void JournalFile::appendAt(qint64 size, const QByteArray& bytes) {
    seek(handle_, size);
    check(SetEndOfFile(handle_));
    writeAll(handle_, bytes);
}

void JournalFile::flush() {
    check(FlushFileBuffers(handle_));
}

// Deleted and moved while it is still locked: nobody else can get it in between.
void JournalFile::remove() {
    if (handle_ == INVALID_HANDLE_VALUE) return;
    FILE_DISPOSITION_INFO disposition{TRUE};
    ToBeRemoved(path_).change(FileDispositionInfo, &disposition, sizeof disposition);
    close();
}

bool JournalFile::moveTo(const QString& path) {
    const bool moved = rename(ToBeRemoved(path_), path);
    if (moved) close();
    return moved;
}

void JournalFile::close() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
}

} // namespace zvonika
