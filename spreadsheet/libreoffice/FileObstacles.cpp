#include "spreadsheet/libreoffice/FileObstacles.h"

#include "platform/RuntimeError.h"
#include "platform/ShownText.h"
#include "spreadsheet/FileRefusals.h"
#include "spreadsheet/Refusals.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace zvonika {

namespace {

constexpr qint64 roomForASave = 1 << 20; ///< bytes; with less than that a disk counts as full

/// "" when the disk shows nothing.
QString obstacle(const QString& path) {
    const QFileInfo file(path), folder(file.absolutePath());
    if (!folder.isWritable() || (file.exists() && !file.isWritable()))
        return QString::fromUtf16(reason::mayNotWrite);
    const QStorageInfo disk(folder.absoluteFilePath());
    if (disk.isReadOnly()) return QString::fromUtf16(reason::readOnlyDisk);
    if (disk.isValid() && disk.bytesAvailable() < roomForASave) return QString::fromUtf16(reason::diskFull);
    return {};
}

} // namespace

void refuseMissing(const QString& path) {
    if (!QFileInfo(path).isFile()) refuse(cannotOpen(path, reason::missing));
}

void refuseToSave(const QString& path) {
    const QFileInfo file(path);
    if (!QFileInfo(file.absolutePath()).isDir()) refuse(cannotSave(path, reason::folderMissing(path)));
    if (file.isDir()) refuse(cannotSave(path, reason::isFolder));
}

void explainingSave(const QString& path, const std::function<void()>& save) {
    try {
        save();
    } catch (const RuntimeError& refusal) {
        if (refusal.number() != error::applicationDefined) throw;
        if (const QString found = obstacle(path); !found.isEmpty()) refuse(cannotSave(path, found));
        throw;
    }
}

} // namespace zvonika
