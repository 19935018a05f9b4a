#pragma once

#include <QString>

#include <optional>

namespace zvonika {

enum class Exclusive;

/// Who has a file open. Of a lock that cannot be read, the user at most is known.
struct LockHolder {
    QString user;                 ///< may be ""
    QString host;                 ///< the computer's name; may be ""
    QString program;              ///< without folder; may be ""
    qint64 process = 0;           ///< 0: not known
    QString machine, boot, start; ///< tell whether it still runs; the first two as keyed hashes
    bool isReadable() const;      ///< more is known than the user
    bool isThisProcess() const;
};

/// Tells others that a file is open here, by a hidden file ".~<name>.zamek" beside it. The lock of a process
/// of this computer that is gone counts for nothing, also when its number is in use again; one that cannot be
/// read counts, be it another user's, a link, a pipe or too long for a lock, and so does the lock of an
/// office program (OfficeLock.h). One that its owner could not delete when he gave it back counts for nothing
/// in his process. Where no such file can be made (folder not writable), the file stays
/// unlocked.
class FileLock {
public:
    FileLock() = default; ///< locks nothing
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    ~FileLock();

    /// Who has the file open, in a process that lives or in an office; nothing when nobody has.
    static std::optional<LockHolder> holder(const QString& nativePath);
    /// 1004, saying who has it open, when another one holds the lock, in this process or elsewhere. Of
    /// several that try at once, one gets it.
    static FileLock acquire(const QString& nativePath);
    /// Takes the lock, whoever holds it. The other one no longer counts, even while it has the file open.
    static FileLock takeOver(const QString& nativePath);

    bool isHeld() const { return !path_.isEmpty(); }
    /// A process known to be dead had the file open when the lock was acquired.
    bool foundStale() const { return foundStale_; }
    /// Name of the lock file of a file.
    static QString lockName(const QString& nativePath);

private:
    Exclusive make(const QString& path);
    void keep(const QString& path, const QByteArray& text);
    void release();

    QString path_;
    QByteArray text_;
    bool foundStale_ = false;
};

} // namespace zvonika
