#pragma once

#include "platform/files/FileLock.h"
#include "spreadsheet/xls/Workbook.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

namespace zvonika {

/// The file of one open workbook: where it lies, what is known of its contents on the disk, and whether the
/// workbook differs from them. Others see it locked. Refusals are AutomationError 1004 with a sentence for
/// the user.
class DocumentFile : public QObject {
    Q_OBJECT

public:
    /// Of a workbook that was never saved; `name`: what it is called until then.
    explicit DocumentFile(const QString& name) : name_(name) {}
    /// As it was read. `hash`: contents hash of the file.
    DocumentFile(const QString& nativePath, QByteArray hash, bool oldFormat, FileLock lock);

    const QString& name() const { return name_; } ///< file name without folder
    const QString& path() const { return path_; } ///< native full name; "" before the first save
    /// Contents hash of the file as it was read or last written; "" before the first save.
    const QByteArray& hash() const { return hash_; }
    /// Cells, a sheet's name or a column's width differ from the file. Moving the cursor alone does not
    /// count.
    bool isModified() const { return modified_; }
    /// The file is of an older format; saving changes turns it into the present one.
    bool isOldFormat() const { return oldFormat_; }
    /// Another program has changed the file since it was read or written here. A file that is gone has not
    /// been changed.
    bool isChangedOnDisk() const;
    /// The workbook has been read from or saved to this file, by whatever name.
    bool isAt(const QString& nativePath) const;

    void markModified() { setModified(true); }

    /// Carries out what works on the file itself, and comes back when it is done. At once, where none is set.
    using Work = std::function<void(const std::function<void()>& work)>;
    void setWork(Work work) { work_ = std::move(work); }

    struct Source {
        std::function<xls::FileImage()> contents;
        /// Told of what will be written, and where, before it is.
        std::function<void(const QString& nativePath, const QByteArray& hash)> announce;
    };
    /// Writes the file whole or not at all, whatever is there by now. Must have a path.
    void save(const Source& source);
    /// As `save`, under a new name that the workbook has from then on; an existing file is replaced.
    void saveAs(const QString& nativePath, const Source& source);

    /// The workbook is being closed: nobody is kept from its file any more.
    void unlock();

Q_SIGNALS:
    void nameChanged();
    void modifiedChanged();

private:
    void store(const QString& nativePath, const Source& source);
    void becomeSaved();
    void setModified(bool modified);

    QString name_;
    QString path_;
    FileLock lock_;
    QByteArray hash_;
    QByteArray writingHash_; ///< of what a save has tried to write; it may be there although the save failed
    bool modified_ = false;
    bool oldFormat_ = false;
    Work work_ = [](const std::function<void()>& work) { work(); };
};

} // namespace zvonika
