#include "platform/files/RegularFile.h"

#include <QFile>

#ifdef Q_OS_WIN
#include "platform/files/Patience.h"
#include "platform/files/WindowsErrors.h"
#include "platform/files/WindowsPath.h"

#include <fcntl.h>
#include <io.h>
#else
#include <cerrno>
#include <fcntl.h>
#endif

namespace zvonika {

namespace {

constexpr qint64 chunk = 1 << 16;

#ifdef Q_OS_WIN

std::errc objection(const QFileInfo& info, Links links) {
    if (info.isSymLink() && links == Links::Refuse) return std::errc::too_many_symbolic_link_levels;
    if (!info.exists()) return std::errc::no_such_file_or_directory;
    return info.isDir() ? std::errc::is_a_directory : std::errc{};
}

/// Others may do with it what they like meanwhile: replace it, too.
HANDLE openShared(const QString& nativePath, std::error_code& reason) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const WindowsPath path(nativePath);
    HANDLE file = INVALID_HANDLE_VALUE;
    reason = windowsError(Patience().ask([&]() -> unsigned long {
        file = CreateFileW(path, GENERIC_READ, everybody, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
        return file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
    }));
    return file;
}

std::errc objection(HANDLE file, qint64 largest) {
    LARGE_INTEGER size{};
    if (GetFileType(file) != FILE_TYPE_DISK || !GetFileSizeEx(file, &size)) return std::errc::no_such_device;
    return size.QuadPart > largest ? std::errc::file_too_large : std::errc{};
}

// What is no file is looked for first, because opening alone makes some devices act.
std::error_code opened(QFile& file, const QString& nativePath, Links links, qint64 largest) {
    std::errc objected = objection(QFileInfo(nativePath), links);
    if (objected != std::errc{}) return std::make_error_code(objected);
    std::error_code reason;
    const HANDLE handle = openShared(nativePath, reason);
    if (reason) return reason;
    objected = objection(handle, largest);
    if (objected != std::errc{}) {
        CloseHandle(handle);
        return std::make_error_code(objected);
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDONLY | _O_BINARY);
    file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return {};
}

#else

std::error_code opened(QFile& file, const QString& nativePath, Links links, qint64 largest) {
    const int handle = openRegular(QFile::encodeName(nativePath), links, largest, O_RDONLY);
    if (handle < 0) return {errno, std::generic_category()};
    file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    return {};
}

#endif

} // namespace

// With a NUL in it a name would be taken for its first half.
std::error_code openRegular(QFile& file, const QString& nativePath, Links links, qint64 largest) {
    if (nativePath.contains(QChar(u'\0'))) return std::make_error_code(std::errc::no_such_file_or_directory);
    return opened(file, nativePath, links, largest);
}

// Files of the system have no size before they are read.
ReadBytes readRegular(const QString& nativePath, Links links, qint64 largest) {
    QFile file;
    if (const std::error_code reason = openRegular(file, nativePath, links, largest)) return {{}, reason};
    QByteArray bytes;
    for (QByteArray part = file.read(chunk); !part.isEmpty(); part = file.read(chunk)) {
        bytes += part;
        if (bytes.size() > largest) return {{}, std::make_error_code(std::errc::file_too_large)};
    }
    if (file.error() != QFileDevice::NoError) return {{}, std::make_error_code(std::errc::io_error)};
    return {bytes, {}};
}

} // namespace zvonika
