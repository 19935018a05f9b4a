#include "song/embedded/FileLock.h"

#include "platform/RuntimeError.h"
#include "song/embedded/FileSentences.h"

#include <QFileInfo>
#include <QStringList>

namespace zvonika {

namespace {

/// Two links to one file mean one lock.
QFileInfo lockedFile(const QString& nativePath) {
    const QString canonical = QFileInfo(nativePath).canonicalFilePath();
    return QFileInfo(canonical.isEmpty() ? nativePath : canonical);
}

QString holder(const QLockFile& lock) {
    qint64 process = 0;
    QString host, program;
    QStringList known;
    const QString user = QFileInfo(lock.fileName()).owner();
    if (!user.isEmpty()) known << QStringLiteral("uživatel %1").arg(user);
    if (lock.getLockInfo(&process, &host, &program)) {
        if (!host.isEmpty()) known << QStringLiteral("počítač %1").arg(host);
        known << QStringLiteral("program %1, proces %2").arg(program).arg(process);
    }
    return known.join(QStringLiteral(", "));
}

} // namespace

QString FileLock::lockName(const QString& nativePath) {
    const QFileInfo file = lockedFile(nativePath);
    return file.absolutePath() + QStringLiteral("/.~%1.zamek").arg(file.fileName());
}

FileLock FileLock::acquire(const QString& nativePath) {
    // Such a name is no file's; QLockFile would cut it at the NUL and lock something else.
    if (nativePath.contains(QChar(u'\0'))) return {};
    auto lock = std::make_unique<QLockFile>(lockName(nativePath));
    lock->setStaleLockTime(0); // a song may stay open for days; only a dead process makes a lock stale
    FileLock result;
    if (lock->tryLock(0))
        result.lock_ = std::move(lock);
    else if (lock->error() == QLockFile::LockFailedError)
        throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, holder(*lock)));
    return result;
}

} // namespace zvonika
