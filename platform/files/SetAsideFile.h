#pragma once

#include "platform/Drive.h"
#include "platform/files/FileLock.h"

#include <QString>
#include <QStringList>

namespace zvonika {

/// A file set aside in a hidden folder of its own beside it, ".~odlozeno-<chance>", where it keeps its name,
/// however long that is. A lock in there tells other starts that somebody will bring it back.
class SetAsideFile : public SetAside {
public:
    /// RuntimeError 70 with a sentence when another process has the file open or the disk refuses.
    explicit SetAsideFile(const QString& nativePath);
    ~SetAsideFile() override;

    void giveUp() override;
    QString bringBack() override;

private:
    QString file_;   ///< its place
    QString folder_; ///< "" once it is settled
    FileLock lock_;
};

/// A hidden folder beside this file, not made yet, where the old one may stand under its name while a new one
/// takes its place. Where a kill leaves it there, `bringBackSetAside` puts it back if the new one does not
/// stand, and deletes it otherwise.
QString newReplacedFolder(const QString& nativePath);

/// Puts back what killed programs have set aside in this folder, see `Drive::bringBackSetAside`.
QStringList bringBackSetAside(const QString& nativeFolder);

} // namespace zvonika
