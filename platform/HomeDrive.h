#pragma once

#include "platform/Drive.h"

namespace zvonika {

/// Drive C: is one native folder, the user's home as a rule; there are no other drives. On Windows, where
/// drives exist, paths are passed on as they are. Slashes and backslashes are both accepted after a drive; a
/// path without a drive is native already.
class HomeDrive : public Drive {
public:
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
    QString programFolder() const override { return programFolder_; }

private:
    QString root_;
    QString programFolder_;
};

} // namespace zvonika
