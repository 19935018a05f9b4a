#pragma once

#include "platform/Drive.h"

#include <QSet>

namespace zvonika::testing {

/// Folders by their full names, nothing else.
class FakeDrive : public Drive {
public:
    QSet<QString> folders{pracovniAdresar};

    QString nativePath(const QString& path) const override { return path; }
    bool fileExists(const QString&) const override { return false; }
    bool folderExists(const QString& path) const override { return folders.contains(path); }
    bool createFolder(const QString& path) override { return folders.insert(path), true; }
    bool deleteFile(const QString&) override { return false; }
    std::unique_ptr<SetAside> setAside(const QString&) override { return nullptr; }
    QStringList bringBackSetAside(const QString&) override { return {}; }
    QString readOnlyBecause(const QString&) const override { return {}; }
    QString unlockedBecause(const QString&) const override { return {}; }
    QString programFolder() const override { return {}; }
};

} // namespace zvonika::testing
