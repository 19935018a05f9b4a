#pragma once

#include "platform/files/FileLock.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <map>
#include <mutex>

namespace zvonika {

class Dialogs;

/// The files that Calc has open, by their native names: what they held when Calc last read or wrote them, and
/// their locks. All names of one file are one. From any thread, but for what asks the user.
class OpenFiles {
public:
    /// `officeProfile`: its URL, as Calc's own locks have it.
    explicit OpenFiles(const QString& officeProfile) : officeProfile_(officeProfile) {}

    /// Calc has the file as it is on the disk now.
    void learn(const QString& nativePath);
    /// It holds something else than Calc knows. False of a file that is gone, or that nothing is known of.
    bool isChanged(const QString& nativePath) const;
    /// An .xls that neither Calc nor Zvonika has written, as far as its contents tell.
    bool isForeign(const QString& nativePath) const;

    /// Locks a file that Calc is to open, when the user wishes so although another one has it open; 1004 when
    /// he does not.
    void lockToOpen(Dialogs& dialogs, const QString& nativePath);
    /// Keeps the lock until the file is closed.
    void hold(const QString& nativePath, FileLock lock);
    void close(const QString& nativePath);
    /// Closes those that are not among these.
    void keepOnly(const QStringList& nativePaths);
    void closeAll();

private:
    struct Known {
        QByteArray hash;
        bool foreign = false;
    };

    static Known look(const QString& nativePath);
    std::optional<Known> known(const QString& nativePath) const;

    QString officeProfile_;
    mutable std::mutex mutex_;
    QHash<QString, Known> known_;
    std::map<QString, FileLock> locks_;
};

} // namespace zvonika
