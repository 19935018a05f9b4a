#include "platform/files/RegularFile.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <QFileInfo>
#else
#include <cerrno>
#include <fcntl.h>
#endif

namespace zvonika {

namespace {

constexpr qint64 chunk = 1 << 16;

#ifdef Q_OS_WIN

std::errc objection(const QFileInfo& info, Links links, qint64 largest) {
    if (info.isSymLink() && links == Links::Refuse) return std::errc::too_many_symbolic_link_levels;
    if (!info.exists()) return std::errc::no_such_file_or_directory;
    if (info.isDir()) return std::errc::is_a_directory;
    if (!info.isFile()) return std::errc::no_such_device;
    return info.size() > largest ? std::errc::file_too_large : std::errc{};
}

// Pipes and devices stand in no folder here.
std::error_code opened(QFile& file, const QString& nativePath, Links links, qint64 largest) {
    const std::errc reason = objection(QFileInfo(nativePath), links, largest);
    if (reason != std::errc{}) return std::make_error_code(reason);
    file.setFileName(nativePath);
    if (file.open(QIODevice::ReadOnly)) return {};
    return std::make_error_code(std::errc::permission_denied);
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
