#include "platform/files/SetAsideFile.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "platform/files/LockSentences.h"
#include "platform/files/SystemFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <system_error>

namespace zvonika {

namespace {

const QString folderPrefix = QStringLiteral(".~odlozeno-");
const QString replacedPrefix = QStringLiteral(".~nahrazeno-");
const QString lockedName = QStringLiteral("odlozeno");

QString cause(const std::error_code& error) {
    if (error == std::errc::read_only_file_system) return QStringLiteral("disk je jen pro čtení");
    if (error == std::errc::no_space_on_device) return QStringLiteral("na disku není dost místa");
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return QStringLiteral("v jeho složce nemáte oprávnění k zápisu, nebo ho má otevřený jiný program");
    if (error == std::errc::text_file_busy) return QStringLiteral("má ho otevřený jiný program");
    return QStringLiteral("na disku nastala chyba %1").arg(error.value());
}

void check(const QString& file, const std::error_code& error) {
    if (error)
        throw RuntimeError(error::permissionDenied,
                           QStringLiteral("Soubor „%1“ nelze vymazat ani nahradit: %2.")
                               .arg(QFileInfo(file).fileName(), cause(error)));
}

void refuseOpenElsewhere(const QString& file) {
    const auto holder = FileLock::holder(file);
    if (holder && !holder->isThisProcess())
        throw RuntimeError(error::permissionDenied, openElsewhere(file, *holder));
}

QString newFolder(const QString& file, const QString& prefix) {
    const QString chance = QString::number(QRandomGenerator::system()->generate64(), 36);
    return QFileInfo(file).absolutePath() + u'/' + prefix + chance;
}

bool stands(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

/// The place itself, or the first free name beside it.
QString freePlace(const QString& file) {
    const QFileInfo place(file);
    QString found = file;
    for (int n = 1; stands(found); ++n) {
        const QString word = n == 1 ? QStringLiteral("původní") : QStringLiteral("původní %1").arg(n);
        const QString ending = place.suffix().isEmpty() ? QString() : u'.' + place.suffix();
        found = place.absolutePath() + u'/' + place.completeBaseName() + QStringLiteral(" (%1)").arg(word) +
                ending;
    }
    return found;
}

/// Where the file is now; "" when it could not be moved and stays aside.
QString putBack(const QString& folder, const QString& file) {
    const QString place = freePlace(file);
    const bool done = !moveFile(folder + u'/' + QFileInfo(file).fileName(), place);
    qCInfo(recoveryLog).noquote() << place << (done ? "vrácen na místo" : "zůstal odložen v " + folder);
    return done ? place : QString();
}

/// Only an empty folder goes.
void removeFolder(const QString& folder, FileLock& lock) {
    lock = FileLock();
    QDir().rmdir(folder);
}

/// Hidden ones: their names hide them, or the system.
QStringList foldersOf(const QString& place, const QString& prefix) {
    QStringList folders;
    const QDir folder(place);
    for (const QString& name :
         folder.entryList({prefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks))
        folders << folder.absoluteFilePath(name);
    return folders;
}

QStringList setAsideIn(const QString& folder) {
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden);
    names.removeAll(QFileInfo(FileLock::lockName(folder + u'/' + lockedName)).fileName());
    return names;
}

/// Of a save that was killed: the old file is needed only where the new one does not stand. A file that
/// somebody has open is being saved.
void clearUpReplaced(const QString& nativeFolder) {
    for (const QString& folder : foldersOf(nativeFolder, replacedPrefix)) {
        for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden)) {
            const QString file = nativeFolder + u'/' + name;
            if (FileLock::holder(file)) continue;
            if (stands(file))
                removeFile(folder + u'/' + name);
            else
                putBack(folder, file);
        }
        QDir().rmdir(folder);
    }
}

} // namespace

SetAsideFile::SetAsideFile(const QString& nativePath) : file_(QFileInfo(nativePath).absoluteFilePath()) {
    refuseOpenElsewhere(file_);
    const QString folder = newFolder(file_, folderPrefix);
    check(file_, makeHiddenFolder(folder));
    lock_ = FileLock::acquire(folder + u'/' + lockedName);
    const std::error_code error = moveFile(file_, folder + u'/' + QFileInfo(file_).fileName());
    if (error) removeFolder(folder, lock_);
    check(file_, error);
    folder_ = folder;
}

SetAsideFile::~SetAsideFile() {
    SetAsideFile::bringBack();
}

void SetAsideFile::giveUp() {
    if (folder_.isEmpty()) return;
    removeFile(folder_ + u'/' + QFileInfo(file_).fileName());
    removeFolder(folder_, lock_);
    folder_.clear();
}

QString SetAsideFile::bringBack() {
    if (folder_.isEmpty()) return {};
    const QString place = putBack(folder_, file_);
    removeFolder(folder_, lock_);
    folder_.clear();
    return place == file_ ? QString() : QFileInfo(place).fileName();
}

QString newReplacedFolder(const QString& nativePath) {
    return newFolder(nativePath, replacedPrefix);
}

QStringList bringBackSetAside(const QString& nativeFolder) {
    QStringList names;
    clearUpReplaced(nativeFolder);
    for (const QString& folder : foldersOf(nativeFolder, folderPrefix)) {
        if (FileLock::holder(folder + u'/' + lockedName)) continue;
        FileLock lock = FileLock::takeOver(folder + u'/' + lockedName);
        for (const QString& file : setAsideIn(folder))
            if (const QString back = putBack(folder, QDir(nativeFolder).absoluteFilePath(file));
                !back.isEmpty())
                names << QFileInfo(back).fileName();
        removeFolder(folder, lock);
    }
    return names;
}

} // namespace zvonika
