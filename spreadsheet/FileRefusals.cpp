#include "spreadsheet/FileRefusals.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

QString cannotOpen(const QString& nativePath, QStringView reason) {
    return QStringLiteral("Soubor „%1“ nelze otevřít: %2.").arg(QFileInfo(nativePath).fileName(), reason);
}

QString cannotSave(const QString& nativePath, QStringView reason) {
    return QStringLiteral("Soubor „%1“ nelze uložit: %2.").arg(QFileInfo(nativePath).fileName(), reason);
}

QString reason::folderMissing(const QString& nativePath) {
    return QStringLiteral("složka „%1“ neexistuje")
        .arg(QDir::toNativeSeparators(QFileInfo(nativePath).absolutePath()));
}

} // namespace zvonika
