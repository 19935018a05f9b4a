#include "platform/files/SameFile.h"

#ifdef Q_OS_WIN
#include "platform/files/WindowsPath.h"
#endif

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

#ifdef Q_OS_WIN

/// "" when there is no such file or it is not shown.
QString nameOfExisting(const QString& nativePath) {
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(WindowsPath(nativePath), 0, everybody, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    wchar_t name[1 << 15];
    const DWORD length = GetFinalPathNameByHandleW(file, name, DWORD(std::size(name)), FILE_NAME_NORMALIZED);
    CloseHandle(file);
    if (length == 0 || length >= std::size(name)) return {};
    QString path = QString::fromWCharArray(name, int(length));
    if (path.startsWith(QStringLiteral("\\\\?\\UNC\\"))) path.replace(0, 7, QStringLiteral("\\"));
    if (path.startsWith(QStringLiteral("\\\\?\\"))) path.remove(0, 4);
    return QDir::fromNativeSeparators(path);
}

QString folded(const QString& path) {
    return path.toCaseFolded();
}

#else

QString nameOfExisting(const QString& nativePath) {
    return QFileInfo(nativePath).canonicalFilePath();
}

QString folded(const QString& path) {
    return path;
}

#endif

} // namespace

QString trueName(const QString& nativePath) {
    if (const QString name = nameOfExisting(nativePath); !name.isEmpty()) return name;
    const QFileInfo file(nativePath);
    const QString folder = nameOfExisting(file.absolutePath());
    if (folder.isEmpty()) return file.absoluteFilePath();
    return folder + (folder.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/")) + file.fileName();
}

QString sameFileKey(const QString& nativePath) {
    return folded(trueName(nativePath));
}

} // namespace zvonika
