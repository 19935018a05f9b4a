#include "platform/files/LockSentences.h"

#include "platform/ShownText.h"
#include "platform/files/FileLock.h"

#include <QStringList>

namespace zvonika {

namespace {

constexpr qsizetype longestName = 60; ///< of what somebody else's lock tells

QString named(const QString& name) {
    return shownName(name, longestName);
}

QString hiddenFile(const QString& nativePath) {
    return shownFileName(FileLock::lockName(nativePath));
}

} // namespace

QString whoHolds(const LockHolder& holder) {
    QStringList known;
    if (!holder.user.isEmpty()) known << QStringLiteral("uživatel %1").arg(named(holder.user));
    if (!holder.host.isEmpty()) known << QStringLiteral("počítač %1").arg(named(holder.host));
    if (holder.process != 0)
        known << QStringLiteral("program %1, proces %2")
                     .arg(named(holder.program), QString::number(holder.process));
    if (known.isEmpty()) known << QStringLiteral("neznámý uživatel");
    return known.join(QStringLiteral(", "));
}

QString openElsewhere(const QString& nativePath, const LockHolder& holder) {
    const QString place = holder.isThisProcess() ? QStringLiteral("v této tabulce") : QStringLiteral("jinde");
    const QString by = holder.isReadable()
                           ? whoHolds(holder)
                           : QStringLiteral("%1; podle skrytého souboru „%2“, který přečíst nejde")
                                 .arg(whoHolds(holder), hiddenFile(nativePath));
    return QStringLiteral("Soubor „%1“ je už otevřen %2 (%3).").arg(shownFileName(nativePath), place, by);
}

QString openAnyway(const QString& nativePath, const LockHolder& holder) {
    const QString name = shownFileName(nativePath);
    const QString who =
        holder.isReadable()
            ? QStringLiteral("Soubor „%1“ má už otevřený někdo jiný:\n%2.").arg(name, whoHolds(holder))
            : QStringLiteral(
                  "Soubor „%1“ má možná už otevřený někdo jiný (%2). Vedle něho leží skrytý soubor "
                  "„%3“, který to má říci, ale přečíst ho nejde. Nemá-li písničku otevřenou "
                  "nikdo, můžete ho smazat.")
                  .arg(name, whoHolds(holder), hiddenFile(nativePath));
    return who + QStringLiteral("\n\nKdybyste ho měnili oba, mohl by jeden z Vás o svou práci přijít. "
                                "Chcete ho přesto otevřít?");
}

} // namespace zvonika
