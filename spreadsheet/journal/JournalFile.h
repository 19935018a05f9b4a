#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <system_error>

namespace zvonika {

/// A file that grows at its end and that nobody else can open as one meanwhile (a process that dies lets go
/// of it). What is written outlives the process; what is flushed, also a power cut. Failures are
/// std::system_error.
class JournalFile {
public:
    /// A new file with these contents. Fails with file_exists when there is one.
    static JournalFile create(const QString& path, const QByteArray& contents);
    /// A file that is there; nothing when another one has it open, or when it is gone. `failure`: set when
    /// the system does not give it.
    static std::optional<JournalFile> open(const QString& path, std::error_code* failure = nullptr);

    JournalFile(JournalFile&& other) noexcept;
    JournalFile& operator=(JournalFile&& other) noexcept;
    ~JournalFile(); ///< closes; the file stays

    const QString& path() const { return path_; }
    QByteArray readAll() const;
    /// Writes behind the first `size` bytes; what a failure has left there is cut off.
    void appendAt(qint64 size, const QByteArray& bytes);
    /// Returns when everything written, and the file's name, are on the disk.
    void flush();
    /// Closes the file and deletes it. Never fails; a file that cannot be deleted stays.
    void remove();
    /// Closes the file and gives it another name in the same file system; false when that fails.
    bool moveTo(const QString& path);

private:
#ifdef Q_OS_WIN
    using Handle = void*;
#else
    using Handle = int;
#endif
    JournalFile(const QString& path, Handle handle) : path_(path), handle_(handle) {}
    void close();

    QString path_;
    Handle handle_;
    bool torn_ = false;  ///< something may stand behind what is known to be whole
    bool named_ = false; ///< the name is on the disk
};

} // namespace zvonika
