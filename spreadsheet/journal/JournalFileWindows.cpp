#include "spreadsheet/journal/JournalFile.h"

#include <QDir>

#include <system_error>
#include <utility>
#include <windows.h>

namespace zvonika {

namespace {

constexpr qint64 largestJournal = qint64{1} << 30;

void check(BOOL done) {
    if (!done) throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
}

/// Nobody else may open the file while it is open here.
HANDLE openFile(const QString& path, DWORD disposition) {
    const QString native = QDir::toNativeSeparators(path);
    return CreateFileW(reinterpret_cast<const wchar_t*>(native.utf16()),
                       GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

void seek(HANDLE file, qint64 offset) {
    LARGE_INTEGER place;
    place.QuadPart = offset;
    check(SetFilePointerEx(file, place, nullptr, FILE_BEGIN));
}

void writeAll(HANDLE file, const QByteArray& bytes) {
    DWORD written = 0;
    check(WriteFile(file, bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr));
}

} // namespace

JournalFile JournalFile::create(const QString& path, const QByteArray& contents) {
    const HANDLE file = openFile(path, CREATE_NEW);
    check(file != INVALID_HANDLE_VALUE);
    JournalFile result(path, file);
    try {
        writeAll(file, contents);
    } catch (...) {
        result.remove();
        throw;
    }
    return result;
}

std::optional<JournalFile> JournalFile::open(const QString& path, std::error_code* failure) {
    const HANDLE file = openFile(path, OPEN_EXISTING);
    const DWORD reason = file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
    const bool absent = reason == ERROR_FILE_NOT_FOUND || reason == ERROR_SHARING_VIOLATION;
    if (reason != ERROR_SUCCESS && !absent && failure)
        *failure = {static_cast<int>(reason), std::system_category()};
    if (file == INVALID_HANDLE_VALUE) return {};
    return JournalFile(path, file);
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
    LARGE_INTEGER size;
    check(GetFileSizeEx(handle_, &size));
    if (size.QuadPart > largestJournal) throw std::system_error(ERROR_FILE_TOO_LARGE, std::system_category());
    QByteArray bytes(static_cast<qsizetype>(size.QuadPart), Qt::Uninitialized);
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

void JournalFile::remove() {
    if (handle_ == INVALID_HANDLE_VALUE) return;
    close();
    DeleteFileW(reinterpret_cast<const wchar_t*>(QDir::toNativeSeparators(path_).utf16()));
}

bool JournalFile::moveTo(const QString& path) {
    close();
    const QString from = QDir::toNativeSeparators(path_), to = QDir::toNativeSeparators(path);
    return MoveFileExW(reinterpret_cast<const wchar_t*>(from.utf16()),
                       reinterpret_cast<const wchar_t*>(to.utf16()), MOVEFILE_WRITE_THROUGH) != 0;
}

void JournalFile::close() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
}

} // namespace zvonika
