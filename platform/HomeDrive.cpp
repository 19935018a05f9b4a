#include "platform/HomeDrive.h"

#include "platform/ShownText.h"
#include "platform/files/FileLock.h"
#include "platform/files/SetAsideFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace zvonika {

namespace {

QString withSlashes(QString path) {
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

/// A native path of a system with drives, which the root then has as well.
bool isWithin(const QString& root, const QString& path) {
    if (!hasDrive(root)) return false;
    const QString folder = QDir::cleanPath(withSlashes(root)), file = QDir::cleanPath(withSlashes(path));
    return (file + QLatin1Char('/')).startsWith(folder + QLatin1Char('/'), Qt::CaseInsensitive);
}

} // namespace

HomeDrive::HomeDrive(const QString& root, const QString& programFolder)
    : root_(root), programFolder_(programFolder) {}

QString HomeDrive::ofTheUser() {
#ifdef Q_OS_WIN
    return {};
#else
    return QDir::homePath();
#endif
}

QString HomeDrive::nativePath(const QString& path) const {
    if (root_.isEmpty() || !hasDrive(path) || isWithin(root_, path)) return path;
    if (path.at(0).toUpper() != QLatin1Char('C')) return {};
    return QDir::cleanPath(withSlashes(root_) + QLatin1Char('/') + withSlashes(path.mid(2)));
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

std::unique_ptr<SetAside> HomeDrive::setAside(const QString& path) {
    return std::make_unique<SetAsideFile>(nativePath(path));
}

QStringList HomeDrive::bringBackSetAside(const QString& folder) {
    return zvonika::bringBackSetAside(nativePath(folder));
}

// Who replaces a file needs both: to write in its folder, and not to get round the file's own protection.
QString HomeDrive::readOnlyBecause(const QString& path) const {
    const QString canonical = QFileInfo(nativePath(path)).canonicalFilePath();
    const QFileInfo file(canonical);
    if (canonical.isEmpty()) return {};
    const QString name = QFileInfo(nativePath(path)).fileName();
    if (QStorageInfo(file.absolutePath()).isReadOnly())
        return QStringLiteral("Soubor „%1“ je na disku jen pro čtení.").arg(name);
    if (!file.isWritable()) return QStringLiteral("Soubor „%1“ je jen pro čtení.").arg(name);
    if (QFileInfo(file.absolutePath()).isWritable()) return {};
    return QStringLiteral("Do složky, ve které je soubor „%1“, nemáte právo zapisovat.").arg(name);
}

QString HomeDrive::unlockedBecause(const QString& path) const {
    const QString native = nativePath(path);
    if (FileLock::holder(native)) return {};
    return QStringLiteral("Soubor „%1“ nejde zamknout: kdyby ho otevřel ještě někdo, nikdo z Vás by se to "
                          "nedozvěděl.")
        .arg(shownFileName(native));
}

} // namespace zvonika
