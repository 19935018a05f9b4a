#include "spreadsheet/libreoffice/OpenFiles.h"

#include "platform/files/OfficeLock.h"
#include "platform/files/OpeningLock.h"
#include "platform/files/RegularFile.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSet>

#include <utility>

namespace zvonika {

namespace {

constexpr qint64 largestFile = qint64{512} << 20; ///< of larger ones nothing is known

/// The record in which an .xls names who has written it, up to the name.
QByteArray writtenBy(const char* name) {
    const QByteArray record("\x5C\x00\x70\x00", 4);
    return record + static_cast<char>(qstrlen(name)) + QByteArray(2, '\0') + name + ' ';
}

bool isOurs(const QByteArray& contents) {
    return contents.contains(writtenBy("Calc")) || contents.contains(writtenBy("Zvonika"));
}

QString keyOf(const QString& nativePath) {
    return FileLock::lockName(nativePath);
}

} // namespace

OpenFiles::Known OpenFiles::look(const QString& nativePath) {
    const ReadBytes file = readRegular(nativePath, Links::Follow, largestFile);
    if (file.trouble) return {};
    return {QCryptographicHash::hash(file.bytes, QCryptographicHash::Sha256), !isOurs(file.bytes)};
}

void OpenFiles::learn(const QString& nativePath) {
    Known now = look(nativePath);
    const std::scoped_lock lock(mutex_);
    known_.insert(keyOf(nativePath), std::move(now));
}

std::optional<OpenFiles::Known> OpenFiles::known(const QString& nativePath) const {
    const std::scoped_lock lock(mutex_);
    const auto found = known_.constFind(keyOf(nativePath));
    if (found == known_.constEnd() || found->hash.isEmpty()) return {};
    return *found;
}

bool OpenFiles::isChanged(const QString& nativePath) const {
    const auto before = known(nativePath);
    return before && QFileInfo::exists(nativePath) && look(nativePath).hash != before->hash;
}

bool OpenFiles::isForeign(const QString& nativePath) const {
    const auto found = known(nativePath);
    return found && found->foreign;
}

// Calc refuses a file with any lock of another office, and takes one of its own profile for its own; what is
// left of either by then counts for nothing.
void OpenFiles::lockToOpen(Dialogs& dialogs, const QString& nativePath) {
    if (officeLockProfile(nativePath) == officeProfile_) removeOfficeLock(nativePath);
    hold(nativePath, zvonika::lockToOpen(dialogs, jmenoCalcu, nativePath));
    removeOfficeLock(nativePath);
}

void OpenFiles::hold(const QString& nativePath, FileLock lock) {
    const std::scoped_lock guard(mutex_);
    locks_[keyOf(nativePath)] = std::move(lock);
}

void OpenFiles::close(const QString& nativePath) {
    const std::scoped_lock guard(mutex_);
    known_.remove(keyOf(nativePath));
    locks_.erase(keyOf(nativePath));
}

void OpenFiles::keepOnly(const QStringList& nativePaths) {
    QSet<QString> kept;
    for (const QString& path : nativePaths)
        kept.insert(keyOf(path));
    const std::scoped_lock guard(mutex_);
    std::erase_if(locks_, [&](const auto& held) { return !kept.contains(held.first); });
}

void OpenFiles::closeAll() {
    const std::scoped_lock guard(mutex_);
    known_.clear();
    locks_.clear();
}

} // namespace zvonika
