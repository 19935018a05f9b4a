#pragma once

#include "platform/Drive.h"

#include <QSet>

namespace zvonika::testing {

/// Folders and files by their full names, nothing else.
class FakeDrive : public Drive {
public:
    QSet<QString> files;
    QSet<QString> folders{pracovniAdresar};
    QStringList created;      ///< folders in the order of their creation
    int failingDeletions = 0; ///< so many deletions fail first

    QString nativePath(const QString& path) const override { return path; }
    bool fileExists(const QString& path) const override { return files.contains(path); }
    bool folderExists(const QString& path) const override { return folders.contains(path); }
    bool createFolder(const QString& path) override {
        created.append(path);
        folders.insert(path);
        return true;
    }
    bool deleteFile(const QString& path) override {
        if (failingDeletions > 0) return --failingDeletions, false;
        return files.remove(path);
    }
    QString programFolderPath = QStringLiteral("/program");
    QString programFolder() const override { return programFolderPath; }
};

} // namespace zvonika::testing
