#include "spreadsheet/embedded/DocumentFile.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "platform/files/AtomicFile.h"
#include "spreadsheet/embedded/WorkbookFile.h"
#include "spreadsheet/journal/ContentHash.h"

#include <QFileInfo>

#include <utility>

namespace zvonika {

DocumentFile::DocumentFile(const QString& nativePath, QByteArray hash, bool oldFormat, FileLock lock)
    : name_(QFileInfo(nativePath).fileName()), path_(nativePath), lock_(std::move(lock)),
      hash_(std::move(hash)), oldFormat_(oldFormat) {}

bool DocumentFile::isChangedOnDisk() const {
    if (path_.isEmpty()) return false;
    bool there = false;
    QByteArray now;
    work_([&] {
        there = QFileInfo::exists(path_);
        if (there) now = contentHashOfFile(path_);
    });
    return there && now != hash_ && now != writingHash_;
}

bool DocumentFile::isAt(const QString& nativePath) const {
    return !path_.isEmpty() && FileLock::lockName(nativePath) == FileLock::lockName(path_);
}

void DocumentFile::setModified(bool modified) {
    if (std::exchange(modified_, modified) != modified) Q_EMIT modifiedChanged();
}

/// The journal learns of the new contents before they are in the file, so that a crash at any moment leaves
/// either changes that are still to be made, or a file that is known to hold them.
void DocumentFile::store(const QString& nativePath, const Source& source) {
    refusingToSave(nativePath, [&] {
        const xls::FileImage image = source.contents();
        const auto pieces = [&](const auto& take) { image.writeTo(take); };
        QByteArray hash = contentHash(pieces);
        source.announce(nativePath, hash);
        writingHash_ = hash;
        work_([&] {
            writeAtomically(nativePath, pieces);
            qCInfo(savingLog).noquote() << nativePath << "uložen, bajtů" << image.size();
        });
        hash_ = std::move(hash);
    });
}

void DocumentFile::save(const Source& source) {
    store(path_, source);
    becomeSaved();
}

void DocumentFile::saveAs(const QString& nativePath, const Source& source) {
    const bool sameFile = isAt(nativePath);
    FileLock lock;
    if (sameFile)
        lock = std::move(lock_);
    else
        work_([&] { lock = FileLock::acquire(nativePath); });
    try {
        store(nativePath, source);
    } catch (...) {
        if (sameFile) lock_ = std::move(lock);
        throw;
    }
    unlock();
    lock_ = std::move(lock);
    path_ = nativePath;
    name_ = QFileInfo(nativePath).fileName();
    Q_EMIT nameChanged();
    becomeSaved();
}

void DocumentFile::unlock() {
    if (lock_.isHeld()) work_([this] { lock_ = {}; });
}

void DocumentFile::becomeSaved() {
    oldFormat_ = oldFormat_ && !modified_;
    setModified(false);
}

} // namespace zvonika
