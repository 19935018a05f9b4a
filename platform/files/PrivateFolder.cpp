#include "platform/files/PrivateFolder.h"

#include <QDir>
#include <QFile>

namespace zvonika {

namespace {

constexpr auto ownersOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

bool made(const QString& path) {
    const QString above = QFileInfo(path).path();
    if (above != path && !QFileInfo::exists(above) && !made(above)) return false;
    return QDir().mkdir(path, ownersOnly);
}

} // namespace

// What somebody else has, or a file system that keeps no rights, stays as it is.
bool makePrivateFolder(const QString& nativePath) {
    const QString path = QDir::cleanPath(nativePath);
    if (!QFileInfo(path).isDir()) return made(path);
    constexpr auto ofOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                              QFile::WriteOther | QFile::ExeOther;
    if (QFile::permissions(path) & ofOthers) QFile::setPermissions(path, ownersOnly);
    return true;
}

} // namespace zvonika
