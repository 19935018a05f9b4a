#include "song/embedded/FileLock.h"

#include "platform/RuntimeError.h"
#include "song/embedded/FileSentences.h"
#include "song/embedded/ProcessStart.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QSysInfo>

#include <utility>

namespace zvonika {

namespace {

const QString formName = QStringLiteral("Tabulka Zvoniky 1");

/// Two links to one file mean one lock.
QFileInfo lockedFile(const QString& nativePath) {
    const QString canonical = QFileInfo(nativePath).canonicalFilePath();
    return QFileInfo(canonical.isEmpty() ? nativePath : canonical);
}

LockHolder ourselves() {
    const qint64 process = QCoreApplication::applicationPid();
    return {{},
            QSysInfo::machineHostName(),
            QCoreApplication::applicationName(),
            process,
            QString::fromLatin1(QSysInfo::machineUniqueId()),
            QString::fromLatin1(QSysInfo::bootUniqueId()),
            processStart(process).value_or(QString())};
}

/// One line each, so that a text that is not whole shows.
QByteArray textOf(const LockHolder& holder) {
    const QStringList lines{formName,     holder.host, holder.program, QString::number(holder.process),
                            holder.start, holder.boot, holder.machine, QString()};
    return lines.join(QLatin1Char('\n')).toUtf8();
}

/// What a process that died between making and writing its lock has left says nothing and counts for nothing.
std::optional<LockHolder> parsed(const QByteArray& text) {
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    if (lines.size() < 8 || lines[0] != formName) return {};
    return LockHolder{{}, lines[1], lines[2], lines[3].toLongLong(), lines[6], lines[5], lines[4]};
}

bool isSameMachine(const LockHolder& a, const LockHolder& b) {
    return a.machine.isEmpty() || b.machine.isEmpty() ? a.host == b.host : a.machine == b.machine;
}

/// Of a process on another computer nothing can be known.
bool isGone(const LockHolder& holder) {
    const LockHolder here = ourselves();
    if (!isSameMachine(holder, here)) return false;
    if (holder.boot != here.boot) return true;
    const auto start = processStart(holder.process);
    return !start || (!holder.start.isEmpty() && !start->isEmpty() && *start != holder.start);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(4096) : QByteArray();
}

} // namespace

bool LockHolder::isThisProcess() const {
    const LockHolder here = ourselves();
    return isSameMachine(*this, here) && boot == here.boot && process == here.process && start == here.start;
}

QString FileLock::lockName(const QString& nativePath) {
    const QFileInfo file = lockedFile(nativePath);
    return file.absolutePath() + QStringLiteral("/.~%1.zamek").arg(file.fileName());
}

std::optional<LockHolder> FileLock::holder(const QString& nativePath) {
    // A name with NUL is no file's.
    if (nativePath.contains(QChar(u'\0'))) return {};
    const QString path = lockName(nativePath);
    auto found = parsed(contents(path));
    if (!found || isGone(*found)) return {};
    found->user = QFileInfo(path).owner();
    return found;
}

FileLock FileLock::acquire(const QString& nativePath) {
    if (const auto other = holder(nativePath))
        throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, *other));
    return takeOver(nativePath);
}

FileLock FileLock::takeOver(const QString& nativePath) {
    FileLock lock;
    if (nativePath.contains(QChar(u'\0'))) return lock;
    const QString path = lockName(nativePath);
    lock.foundStale_ = QFile::remove(path);
    lock.write(path);
    return lock;
}

bool FileLock::write(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) return false;
    const QByteArray text = textOf(ourselves());
    if (file.write(text) != text.size()) { // a full disk; others could not tell whose it is
        file.remove();
        return false;
    }
    path_ = path;
    text_ = text;
    return true;
}

FileLock::FileLock(FileLock&& other) noexcept
    : path_(std::exchange(other.path_, {})), text_(std::move(other.text_)), foundStale_(other.foundStale_) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    std::swap(path_, other.path_);
    std::swap(text_, other.text_);
    std::swap(foundStale_, other.foundStale_);
    return *this;
}

FileLock::~FileLock() {
    release();
}

// Another one may have taken the lock over.
void FileLock::release() {
    if (isHeld() && contents(path_) == text_) QFile::remove(path_);
}

} // namespace zvonika
