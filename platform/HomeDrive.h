#pragma once

#include "platform/Drive.h"

namespace zvonika {

/// Drive C: is one native folder, the root; there are no other drives. Slashes and backslashes are both
/// accepted after a drive; a path without a drive is native already, and so is one that lies in the root.
/// With no root the drives are those of the system, and paths are passed on as they are.
class HomeDrive : public Drive {
public:
    /// The root of a run that works with what the user has: the home folder, none on Windows.
    static QString ofTheUser();
    /// `root`: the native folder that is C:; `programFolder`: where tables and manual live, native.
    HomeDrive(const QString& root, const QString& programFolder);

    QString nativePath(const QString& path) const override;
    bool fileExists(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    bool createFolder(const QString& path) override;
    bool deleteFile(const QString& path) override;
    std::unique_ptr<SetAside> setAside(const QString& path) override;
    QStringList bringBackSetAside(const QString& folder) override;
    QString readOnlyBecause(const QString& path) const override;
    QString unlockedBecause(const QString& path) const override;
    QString programFolder() const override { return programFolder_; }

private:
    QString root_;
    QString programFolder_;
};

} // namespace zvonika
