#include "spreadsheet/journal/JournalFolder.h"

#include "platform/files/PrivateFolder.h"
#include "spreadsheet/journal/ContentHash.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace zvonika {

namespace {

const QString ending = QStringLiteral(".journal");
const QString asideName = QStringLiteral("odmitnute");
constexpr int mostOfOneSong = 1000;

/// Without links in it, also of a song that is not there.
QString canonical(const QString& song) {
    const QFileInfo file(song);
    const QString path = file.canonicalFilePath();
    return path.isEmpty() ? QFileInfo(file.path()).canonicalFilePath() + QLatin1Char('/') + file.fileName()
                          : path;
}

/// What the names of a song's journals begin with.
QString key(const QString& song) {
    if (song.isEmpty()) return QStringLiteral("novy");
    const auto hash = QCryptographicHash::hash(canonical(song).toUtf8(), QCryptographicHash::Sha1);
    return QString::fromLatin1(hash.toHex().left(20));
}

QString fileName(const QString& song, int number) {
    return QStringLiteral("%1-%2%3").arg(key(song)).arg(number).arg(ending);
}

bool exists(const std::system_error& failure) {
    return failure.code() == std::errc::file_exists;
}

/// What a disk does not give back must not keep a song from being opened.
QByteArray readable(const JournalFile& file) {
    try {
        return file.readAll();
    } catch (const std::system_error&) {
        return QByteArrayLiteral("?");
    }
}

void pruneAside(QDir aside) {
    const auto files = aside.entryInfoList({QLatin1Char('*') + ending}, QDir::Files, QDir::Time);
    for (qsizetype i = JournalFolder::keptAside; i < files.size(); ++i)
        aside.remove(files[i].fileName());
}

bool isOlder(const PendingJournal& a, const PendingJournal& b) {
    return a.contents.lastChange() < b.contents.lastChange();
}

} // namespace

JournalFile JournalFolder::begin(const QString& song, const QByteArray& contents) const {
    const QDir folder(path_);
    if (!makePrivateFolder(path_))
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
    for (int number = 0; number < mostOfOneSong; ++number) {
        const QString path = folder.filePath(fileName(song, number));
        if (QFileInfo::exists(path)) continue;
        try {
            return JournalFile::create(path, contents);
        } catch (const std::system_error& failure) {
            if (!exists(failure)) throw;
        }
    }
    throw std::system_error(std::make_error_code(std::errc::file_exists));
}

/// Adds the journal to the found ones, or clears it away.
void JournalFolder::look(JournalFile file, std::vector<PendingJournal>& found,
                         QStringList* unreadable) const {
    const QByteArray bytes = readable(file);
    auto contents = readJournal(bytes);
    if (!contents) return clearAway(std::move(file), bytes.isEmpty(), unreadable);
    contents->dropSaved(contentHashOfFile);
    if (contents->groups.empty())
        file.remove();
    else
        found.push_back({std::move(file), std::move(*contents)});
}

void JournalFolder::clearAway(JournalFile file, bool isEmpty, QStringList* unreadable) const {
    if (isEmpty) return file.remove();
    const QString place = setAside(std::move(file));
    if (unreadable) unreadable->append(place);
}

std::vector<PendingJournal> JournalFolder::pending(const QString& song, QStringList* unreadable) const {
    std::vector<PendingJournal> found;
    if (isOff()) return found;
    const QDir folder(path_);
    for (const QString& name : folder.entryList({key(song) + QStringLiteral("-*") + ending}, QDir::Files)) {
        if (auto file = JournalFile::open(folder.filePath(name))) look(std::move(*file), found, unreadable);
    }
    std::ranges::stable_sort(found, isOlder);
    return found;
}

void JournalFolder::setAsideAll(const QString& song) const {
    for (auto& journal : pending(song))
        setAside(std::move(journal.file));
}

QString JournalFolder::setAside(JournalFile file) const {
    QDir aside(QDir(path_).filePath(asideName));
    const QString base = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss"));
    const QString before = file.path();
    if (!aside.mkpath(QStringLiteral("."))) return before;
    for (int number = 0; number < mostOfOneSong; ++number) {
        const QString target = aside.filePath(QStringLiteral("%1_%2%3").arg(base).arg(number).arg(ending));
        if (QFileInfo::exists(target)) continue;
        if (!file.moveTo(target)) return before;
        pruneAside(aside);
        return target;
    }
    return before;
}

} // namespace zvonika
