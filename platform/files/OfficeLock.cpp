#include "platform/files/OfficeLock.h"

#include "platform/files/RegularFile.h"
#include "platform/files/SameFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QSysInfo>

namespace zvonika {

namespace {

constexpr qint64 mostBytes = 4096;
/// In the order of the file; the full name may be empty, the rest may be missing.
enum Field { FullName, Login, Host, Since, Profile, FieldCount };

/// A link, a pipe or a device under the name is there, but says nothing.
QByteArray contentsOf(const QFileInfo& lock) {
    return readRegular(lock.filePath(), Links::Refuse, mostBytes).bytes;
}

/// "name,login,host,time,profile;": a backslash stands before what is no separator.
QStringList fieldsOf(const QString& text) {
    QStringList fields(QString{});
    for (qsizetype i = 0; i < text.size() && text[i] != u';'; ++i) {
        if (text[i] == u',') {
            fields << QString();
            continue;
        }
        if (text[i] == u'\\') ++i;
        if (i < text.size()) fields.back() += text[i];
    }
    while (fields.size() < FieldCount)
        fields << QString();
    return fields;
}

QStringList fieldsOfLock(const QFileInfo& lock) {
    return fieldsOf(QString::fromUtf8(contentsOf(lock)));
}

/// Of this computer; nothing where the system does not tell.
std::optional<QDateTime> lastStart() {
    QFile file(QStringLiteral("/proc/uptime"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    bool read = false;
    const double seconds = file.readLine().split(' ').value(0).toDouble(&read);
    if (!read) return {};
    return QDateTime::currentDateTimeUtc().addMSecs(-static_cast<qint64>(seconds * 1000));
}

bool isFromBefore(const QFileInfo& lock) {
    const auto start = lastStart();
    return start && lock.lastModified() < *start;
}

} // namespace

QString officeLockName(const QString& nativePath) {
    const QFileInfo file(trueName(nativePath));
    return file.absolutePath() + QStringLiteral("/.~lock.%1#").arg(file.fileName());
}

std::optional<LockHolder> officeLockHolder(const QString& nativePath) {
    const QFileInfo lock(officeLockName(nativePath));
    if (!lock.exists() && !lock.isSymLink()) return {};
    const QStringList fields = fieldsOfLock(lock);
    if (fields[Host] == QSysInfo::machineHostName() && isFromBefore(lock)) return {};
    LockHolder holder;
    holder.user = fields[Login].isEmpty() ? fields[FullName].trimmed() : fields[Login];
    holder.host = fields[Host];
    holder.program = QStringLiteral("LibreOffice");
    if (holder.user.isEmpty()) holder.user = lock.owner();
    return holder;
}

QString officeLockProfile(const QString& nativePath) {
    return fieldsOfLock(QFileInfo(officeLockName(nativePath)))[Profile];
}

void removeOfficeLock(const QString& nativePath) {
    QFile::remove(officeLockName(nativePath));
}

} // namespace zvonika
