#pragma once

#include <QString>
#include <QStringList>

#include <memory>

namespace zvonika {

/// A file that stands aside for a new one of its name. It goes back with this object, unless it was given up,
/// and at the next start where the program did not come to that.
class SetAside {
public:
    SetAside() = default;
    virtual ~SetAside() = default;
    SetAside(const SetAside&) = delete;
    SetAside& operator=(const SetAside&) = delete;

    /// The new file stands: deletes the old one.
    virtual void giveUp() = 0;
    /// Puts the file back; beside it, under a name of its own, where something stands in its place. The name
    /// without folder that it has then when it is another one, otherwise "".
    virtual QString bringBack() = 0;
};

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
    /// Takes a file out of the way of a new one. RuntimeError 70 with a Czech sentence when that cannot be
    /// done, or another program has the file open; it stays as it is then.
    virtual std::unique_ptr<SetAside> setAside(const QString& path) = 0;
    /// Puts back into `folder` what programs that were killed have set aside there: the names that the files
    /// have now, without folder.
    virtual QStringList bringBackSetAside(const QString& folder) = 0;
    /// Why a save in this existing file would be refused, as the disk shows it beforehand: one Czech
    /// sentence; "" when nothing is in its way.
    virtual QString readOnlyBecause(const QString& path) const = 0;
    /// What to know of a file that is open here although no lock tells others so: one Czech sentence; "" when
    /// one does.
    virtual QString unlockedBecause(const QString& path) const = 0;

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
