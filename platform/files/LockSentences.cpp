#include "platform/files/LockSentences.h"

#include "platform/files/FileLock.h"

#include <QFileInfo>
#include <QStringList>

namespace zvonika {

QString whoHolds(const LockHolder& holder) {
    QStringList known;
    if (!holder.user.isEmpty()) known << QStringLiteral("uživatel %1").arg(holder.user);
    if (!holder.host.isEmpty()) known << QStringLiteral("počítač %1").arg(holder.host);
    if (holder.process != 0)
        known << QStringLiteral("program %1, proces %2").arg(holder.program).arg(holder.process);
    if (known.isEmpty()) known << QStringLiteral("neznámý uživatel");
    return known.join(QStringLiteral(", "));
}

QString openElsewhere(const QString& nativePath, const LockHolder& holder) {
    const QString place = holder.isThisProcess() ? QStringLiteral("v této tabulce") : QStringLiteral("jinde");
    return QStringLiteral("Soubor „%1“ je už otevřen %2 (%3).")
        .arg(QFileInfo(nativePath).fileName(), place, whoHolds(holder));
}

} // namespace zvonika
