#include "platform/HomeDrive.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

#ifndef Q_OS_WIN
QString withSlashes(QString path) {
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}
#endif

} // namespace

HomeDrive::HomeDrive(const QString& root, const QString& programFolder)
    : root_(root), programFolder_(programFolder) {}

QString HomeDrive::nativePath(const QString& path) const {
#ifdef Q_OS_WIN
    return path;
#else
    if (!hasDrive(path)) return path;
    if (path.at(0).toUpper() != QLatin1Char('C')) return {};
    return QDir::cleanPath(root_ + QLatin1Char('/') + withSlashes(path.mid(2)));
#endif
}

bool HomeDrive::fileExists(const QString& path) const {
    return QFileInfo(nativePath(path)).isFile();
}

bool HomeDrive::folderExists(const QString& path) const {
    return QFileInfo(nativePath(path)).isDir();
}

bool HomeDrive::createFolder(const QString& path) {
    const QString native = nativePath(path);
    return !native.isEmpty() && QDir().mkdir(native);
}

bool HomeDrive::deleteFile(const QString& path) {
    return QFile::remove(nativePath(path));
}

} // namespace zvonika
