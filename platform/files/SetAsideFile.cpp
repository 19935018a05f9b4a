#include "platform/files/SetAsideFile.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "platform/files/LockSentences.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <filesystem>
#include <system_error>

namespace zvonika {

namespace {

const QString folderPrefix = QStringLiteral(".~odlozeno-");
const QString lockedName = QStringLiteral("odlozeno");

std::filesystem::path toPath(const QString& native) {
    return native.toStdU16String();
}

QString cause(const std::error_code& error) {
    if (error == std::errc::read_only_file_system) return QStringLiteral("disk je jen pro čtení");
    if (error == std::errc::no_space_on_device) return QStringLiteral("na disku není dost místa");
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return QStringLiteral("v jeho složce nemáte oprávnění k zápisu, nebo ho má otevřený jiný program");
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

QString newFolder(const QString& file) {
    const QString chance = QString::number(QRandomGenerator::system()->generate64(), 36);
    return QFileInfo(file).absolutePath() + u'/' + folderPrefix + chance;
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
    const bool done = QFile::rename(folder + u'/' + QFileInfo(file).fileName(), place);
    qCInfo(recoveryLog).noquote() << place << (done ? "vrácen na místo" : "zůstal odložen v " + folder);
    return done ? place : QString();
}

/// Only an empty folder goes.
void removeFolder(const QString& folder, FileLock& lock) {
    lock = FileLock();
    QDir().rmdir(folder);
}

QStringList setAsideIn(const QString& folder) {
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden);
    names.removeAll(QFileInfo(FileLock::lockName(folder + u'/' + lockedName)).fileName());
    return names;
}

} // namespace

SetAsideFile::SetAsideFile(const QString& nativePath) : file_(QFileInfo(nativePath).absoluteFilePath()) {
    refuseOpenElsewhere(file_);
    const QString folder = newFolder(file_);
    std::error_code error;
    std::filesystem::create_directory(toPath(folder), error);
    check(file_, error);
    lock_ = FileLock::acquire(folder + u'/' + lockedName);
    std::filesystem::rename(toPath(file_), toPath(folder + u'/' + QFileInfo(file_).fileName()), error);
    if (error) removeFolder(folder, lock_);
    check(file_, error);
    folder_ = folder;
}

SetAsideFile::~SetAsideFile() {
    SetAsideFile::bringBack();
}

void SetAsideFile::giveUp() {
    if (folder_.isEmpty()) return;
    QFile::remove(folder_ + u'/' + QFileInfo(file_).fileName());
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

QStringList bringBackSetAside(const QString& nativeFolder) {
    QStringList names;
    const QDir place(nativeFolder);
    for (const QString& name :
         place.entryList({folderPrefix + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
        const QString folder = place.absoluteFilePath(name);
        if (FileLock::holder(folder + u'/' + lockedName)) continue;
        FileLock lock = FileLock::takeOver(folder + u'/' + lockedName);
        for (const QString& file : setAsideIn(folder))
            if (const QString back = putBack(folder, place.absoluteFilePath(file)); !back.isEmpty())
                names << QFileInfo(back).fileName();
        removeFolder(folder, lock);
    }
    return names;
}

} // namespace zvonika
