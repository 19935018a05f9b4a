#include "spreadsheet/libreoffice/FileObstacles.h"

#include "platform/RuntimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace zvonika {

namespace {

constexpr qint64 roomForASave = 1 << 20; ///< bytes; with less than that a disk counts as full

[[noreturn]] void refuse(const QString& sentence) {
    throw RuntimeError(error::applicationDefined, sentence);
}

[[noreturn]] void refuseSave(const QString& path, const QString& reason) {
    refuse(QStringLiteral("Soubor „%1“ nelze uložit: %2.").arg(QFileInfo(path).fileName(), reason));
}

/// "" when the disk shows nothing.
QString obstacle(const QString& path) {
    const QFileInfo file(path), folder(file.absolutePath());
    if (!folder.isWritable() || (file.exists() && !file.isWritable()))
        return QStringLiteral("nemáte oprávnění k zápisu");
    const QStorageInfo disk(folder.absoluteFilePath());
    if (disk.isReadOnly()) return QStringLiteral("disk je jen pro čtení");
    if (disk.isValid() && disk.bytesAvailable() < roomForASave)
        return QStringLiteral("na disku není dost místa");
    return {};
}

} // namespace

void refuseMissing(const QString& path) {
    if (!QFileInfo(path).isFile())
        refuse(QStringLiteral("Soubor „%1“ nelze otevřít: neexistuje.").arg(QFileInfo(path).fileName()));
}

void refuseTwin(const OpenWorkbook& open, const QString& path) {
    if (open.name.compare(QFileInfo(path).fileName(), Qt::CaseInsensitive) == 0)
        refuse(QStringLiteral("Sešit „%1“ je už otevřen; dva sešity téhož jména najednou otevřít nelze.")
                   .arg(open.name));
}

void refuseToSave(const QString& path) {
    const QFileInfo file(path);
    const QString folder = QDir::toNativeSeparators(file.absolutePath());
    if (!QFileInfo(file.absolutePath()).isDir())
        refuseSave(path, QStringLiteral("složka „%1“ neexistuje").arg(folder));
    if (file.isDir()) refuseSave(path, QStringLiteral("pod tímto jménem je na disku složka"));
}

void explainingSave(const QString& path, const std::function<void()>& save) {
    try {
        save();
    } catch (const RuntimeError& refusal) {
        if (refusal.number() != error::applicationDefined) throw;
        if (const QString reason = obstacle(path); !reason.isEmpty()) refuseSave(path, reason);
        throw;
    }
}

} // namespace zvonika
