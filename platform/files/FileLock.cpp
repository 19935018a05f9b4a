#include "platform/files/FileLock.h"

#include "platform/RuntimeError.h"
#include "platform/files/Checksum.h"
#include "platform/files/ExclusiveFile.h"
#include "platform/files/FileNames.h"
#include "platform/files/LockSentences.h"
#include "platform/files/OfficeLock.h"
#include "platform/files/ProcessStart.h"
#include "platform/files/RegularFile.h"
#include "platform/files/SameFile.h"
#include "platform/files/SystemFile.h"
#include "platform/files/UserName.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageAuthenticationCode>
#include <QMutex>
#include <QStringList>
#include <QSysInfo>
#include <QThread>

#include <utility>

namespace zvonika {

namespace {

const QString formName = QStringLiteral("Tabulka Zvoniky 1");
constexpr qint64 largestLock = 4096; ///< bytes
constexpr int attempts = 40;
constexpr unsigned long pauseBetween = 5; ///< ms; a lock is written in much less

/// Equal for equal identifiers, and tells nothing else of them: a lock lies where others read it.
QString veiled(const QByteArray& identifier) {
    if (identifier.isEmpty()) return {};
    const QByteArray hash =
        QMessageAuthenticationCode::hash(formName.toUtf8(), identifier, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(32));
}

/// A long name leaves no room for the rest: its end gives way to a checksum of the whole.
QString nameOfLock(const QString& file) {
    constexpr qsizetype longest = 255; // bytes, in every usual file system
    const QString around = QStringLiteral(".~%1.zamek");
    const auto isTooLong = [&](const QString& name) { return around.arg(name).toUtf8().size() > longest; };
    if (!isTooLong(file)) return around.arg(file);
    const QString checksum = QLatin1Char('~') + QString::number(crc32(file.toUtf8()), 16);
    QString beginning = file;
    while (isTooLong(beginning + checksum) || beginning.back().isHighSurrogate())
        beginning.chop(1);
    return around.arg(beginning + checksum);
}

LockHolder ourselves() {
    static const QString machine = veiled(QSysInfo::machineUniqueId());
    static const QString boot = veiled(QSysInfo::bootUniqueId());
    const qint64 process = QCoreApplication::applicationPid();
    return {userOfFiles(),
            QSysInfo::machineHostName(),
            QCoreApplication::applicationName(),
            process,
            machine,
            boot,
            processStart(process).value_or(QString())};
}

/// One line each, so that a text that is not whole shows.
QByteArray textOf(const LockHolder& holder) {
    const QStringList lines{formName,     holder.host, holder.program, QString::number(holder.process),
                            holder.start, holder.boot, holder.machine, holder.user,
                            QString()};
    return lines.join(QLatin1Char('\n')).toUtf8();
}

/// Something else under a lock's name says nothing and counts for nothing.
std::optional<LockHolder> parsed(const QByteArray& text) {
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    if (lines.size() < 8 || lines[0] != formName) return {};
    return LockHolder{lines[7], lines[1], lines[2], lines[3].toLongLong(), lines[6], lines[5], lines[4]};
}

/// Copies of one installation have one identifier on many computers.
bool isSameMachine(const LockHolder& a, const LockHolder& b) {
    return a.host == b.host && (a.machine.isEmpty() || b.machine.isEmpty() || a.machine == b.machine);
}

/// Of a process on another computer nothing can be known.
bool isGone(const LockHolder& holder) {
    const LockHolder here = ourselves();
    if (!isSameMachine(holder, here)) return false;
    if (holder.boot != here.boot) return true;
    const auto start = processStart(holder.process);
    return !start || (!holder.start.isEmpty() && !start->isEmpty() && *start != holder.start);
}

/// The locks that this process could not delete when it gave them back. They are no more locks than before;
/// what belongs to a process is kept for the process.
class GivenBack {
public:
    static void add(const QString& path) {
        const QMutexLocker locker(&mutex());
        if (!paths().contains(path)) paths() << path;
    }
    static bool contains(const QString& path) {
        const QMutexLocker locker(&mutex());
        return paths().contains(path);
    }
    static void remove(const QString& path) {
        const QMutexLocker locker(&mutex());
        paths().removeAll(path);
    }

private:
    static QStringList& paths() {
        static QStringList paths;
        return paths;
    }
    static QMutex& mutex() {
        static QMutex mutex;
        return mutex;
    }
};

enum class State {
    Free,
    Held,
    Dead,
    Ours, ///< given back, but not deleted
    Meaningless,
    BeingWritten
};

struct Found {
    State state = State::Free;
    QByteArray text;
    LockHolder holder; ///< of a lock that cannot be read, the user at most

    bool counts() const { return state == State::Held || state == State::BeingWritten; }
};

/// What cannot be read is of somebody: a pipe or a folder, a link, too much of anything, a file of another
/// user.
Found look(const QString& path) {
    const ReadBytes lock = readRegular(path, Links::Refuse, largestLock);
    if (lock.trouble) {
        const QFileInfo there(path);
        return there.exists() || there.isSymLink() ? Found{State::Held, {}, {}} : Found{};
    }
    if (lock.bytes.isEmpty()) return {State::BeingWritten, {}, {}};
    const auto holder = parsed(lock.bytes);
    if (!holder) return {State::Meaningless, lock.bytes, {}};
    if (lock.bytes == textOf(ourselves()) && GivenBack::contains(path))
        return {State::Ours, lock.bytes, *holder};
    return {isGone(*holder) ? State::Dead : State::Held, lock.bytes, *holder};
}

/// What the disk says of it cannot be made up; where it says nothing, the lock itself has to. Of a link it
/// would be the owner of what it leads to.
QString ownerOf(const QString& path) {
    const QFileInfo file(path);
    return file.isSymLink() ? QString() : file.owner();
}

/// One that stays empty is of somebody all the same.
Found lookWhenWritten(const QString& path) {
    Found found = look(path);
    for (int i = 1; i < attempts && found.state == State::BeingWritten; ++i) {
        QThread::msleep(pauseBetween);
        found = look(path);
    }
    if (!found.counts()) return found;
    if (const QString owner = ownerOf(path); !owner.isEmpty()) found.holder.user = owner;
    return found;
}

// A name with NUL is no file's, and there are others.
bool isNoName(const QString& nativePath) {
    return nativePath.contains(QChar(u'\0')) || !forbiddenName(nativePath).isEmpty();
}

[[noreturn]] void refuse(const QString& nativePath, const LockHolder& holder) {
    throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, holder));
}

} // namespace

bool LockHolder::isReadable() const {
    return process != 0 || !host.isEmpty() || !program.isEmpty();
}

bool LockHolder::isThisProcess() const {
    const LockHolder here = ourselves();
    return isSameMachine(*this, here) && boot == here.boot && process == here.process && start == here.start;
}

QString FileLock::lockName(const QString& nativePath) {
    const QFileInfo file(trueName(nativePath)); // two links to one file mean one lock
    return file.absolutePath() + QLatin1Char('/') + nameOfLock(file.fileName());
}

std::optional<LockHolder> FileLock::holder(const QString& nativePath) {
    if (isNoName(nativePath)) return {};
    const Found found = lookWhenWritten(lockName(nativePath));
    return found.counts() ? std::optional(found.holder) : officeLockHolder(nativePath);
}

FileLock FileLock::acquire(const QString& nativePath) {
    FileLock lock;
    if (isNoName(nativePath)) return lock;
    if (const auto office = officeLockHolder(nativePath)) refuse(nativePath, *office);
    const QString path = lockName(nativePath);
    for (int i = 0; i < attempts; ++i) {
        const Found found = lookWhenWritten(path);
        if (found.counts()) refuse(nativePath, found.holder);
        if (found.state == State::Ours) {
            lock.keep(path, found.text);
            return lock;
        }
        Exclusive step = found.state == State::Free ? Exclusive::Done : removeExclusively(path, found.text);
        if (step == Exclusive::Done) {
            lock.foundStale_ = lock.foundStale_ || found.state == State::Dead;
            step = lock.make(path);
        }
        if (step != Exclusive::OtherFirst) return lock;
        QThread::msleep(pauseBetween);
    }
    refuse(nativePath, {});
}

FileLock FileLock::takeOver(const QString& nativePath) {
    FileLock lock;
    if (isNoName(nativePath)) return lock;
    const QString path = lockName(nativePath);
    removeFile(path);
    lock.make(path);
    return lock;
}

void FileLock::keep(const QString& path, const QByteArray& text) {
    GivenBack::remove(path);
    path_ = path;
    text_ = text;
}

Exclusive FileLock::make(const QString& path) {
    const QByteArray text = textOf(ourselves());
    const Exclusive made = makeExclusively(path, text);
    if (made == Exclusive::Done) keep(path, text);
    return made;
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
    if (isHeld() && removeExclusively(path_, text_) == Exclusive::Impossible) GivenBack::add(path_);
}

} // namespace zvonika
