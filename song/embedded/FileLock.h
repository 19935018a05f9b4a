#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace zvonika {

/// Tells others that a file is open here, by a hidden file ".~<name>.zamek" beside it. The lock of a process
/// that is gone counts for nothing. Where no such file can be made (folder not writable), the file stays
/// unlocked.
class FileLock {
public:
    FileLock() = default; ///< locks nothing

    /// 1004, saying who has it open, when another living process (or another document here) holds the lock.
    static FileLock acquire(const QString& nativePath);

    bool isHeld() const { return lock_ != nullptr; }
    /// Name of the lock file of a file.
    static QString lockName(const QString& nativePath);

private:
    std::unique_ptr<QLockFile> lock_;
};

} // namespace zvonika
