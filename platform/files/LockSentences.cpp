#include "platform/files/LockSentences.h"

#include "platform/files/FileLock.h"

#include <QFileInfo>
#include <QStringList>

namespace zvonika {

namespace {

QString programOf(const LockHolder& holder) {
    const QString program = QStringLiteral("program %1").arg(holder.program);
    return holder.process == 0 ? program : program + QStringLiteral(", proces %1").arg(holder.process);
}

} // namespace

QString whoHolds(const LockHolder& holder) {
    QStringList known;
    if (!holder.user.isEmpty()) known << QStringLiteral("uživatel %1").arg(holder.user);
    if (!holder.host.isEmpty()) known << QStringLiteral("počítač %1").arg(holder.host);
    if (!holder.program.isEmpty()) known << programOf(holder);
    if (known.isEmpty()) known << QStringLiteral("neznámý uživatel");
    return known.join(QStringLiteral(", "));
}

QString openElsewhere(const QString& nativePath, const LockHolder& holder) {
    const QString place = holder.isThisProcess() ? QStringLiteral("v této tabulce") : QStringLiteral("jinde");
    return QStringLiteral("Soubor „%1“ je už otevřen %2 (%3).")
        .arg(QFileInfo(nativePath).fileName(), place, whoHolds(holder));
}

} // namespace zvonika
