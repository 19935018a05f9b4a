#pragma once

#include <QString>

namespace zvonika {

/// The folders of the program's world: paths are written "C:\Dokumenty\..." and mean a native folder; drive
/// C: is the user's home folder where the system has no drives. A native absolute path passes through
/// unchanged, and a drive that does not exist yields an empty native path.
class Drive {
public:
    virtual ~Drive() = default;

    /// The native form of `path`, or "" when its drive does not exist.
    virtual QString nativePath(const QString& path) const = 0;

    virtual bool fileExists(const QString& path) const = 0;
    virtual bool folderExists(const QString& path) const = 0;

    /// Creates one folder; its parent must exist. False when it could not be created (also when it is there).
    virtual bool createFolder(const QString& path) = 0;

    /// False when the file could not be deleted.
    virtual bool deleteFile(const QString& path) = 0;

    /// The program's own folder (tables, manual), native.
    virtual QString programFolder() const = 0;
};

/// The path names a drive ("C:\\Dokumenty"), be there one of that letter or not.
inline bool hasDrive(const QString& path) {
    return path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
}

/// Where songs, their copies and their sound files live.
inline const QString pracovniAdresar = QStringLiteral("C:\\Dokumenty\\Heligonka\\Zvonika");

} // namespace zvonika
