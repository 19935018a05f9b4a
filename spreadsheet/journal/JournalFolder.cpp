#include "spreadsheet/journal/JournalFolder.h"

#include "platform/files/PrivateFolder.h"
#include "platform/files/SameFile.h"
#include "spreadsheet/journal/ContentHash.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>

namespace zvonika {

namespace {

const QString ending = QStringLiteral(".journal");
const QString asideName = QStringLiteral("odmitnute");
const QString neverSaved = QStringLiteral("novy");
constexpr int mostOfOneSong = 1000;

/// What the names of a song's journals begin with.
QString key(const QString& song) {
    if (song.isEmpty()) return neverSaved;
    const auto hash = QCryptographicHash::hash(sameFileKey(song).toUtf8(), QCryptographicHash::Sha1);
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
    const auto files =
        aside.entryInfoList({QLatin1Char('*') + ending}, QDir::Files | QDir::Hidden, QDir::Time);
    for (qsizetype i = JournalFolder::keptAside; i < files.size(); ++i)
        aside.remove(files[i].fileName());
}

/// Several crashes can have left several journals of one song.
void addTo(std::vector<PendingSong>& songs, const JournalContents& contents) {
    const JournalBase& base = contents.base;
    const PendingSong song{base.path, base.name, contents.changeCount(), contents.lastChange(),
                           QFileInfo::exists(base.path)};
    const auto known = std::ranges::find(songs, song.path, &PendingSong::path);
    if (known == songs.end()) return songs.push_back(song);
    known->changes += song.changes;
    known->lastChange = std::max(known->lastChange, song.lastChange);
}

/// Songs can be alike, new ones as a rule. Then the one of the same name is meant, if it is one.
void keepThoseOfOneSong(std::vector<PendingJournal>& journals, const QString& name) {
    const auto former = [](const PendingJournal& journal) { return journal.contents.base.path; };
    const auto several = [&] {
        return std::ranges::any_of(journals,
                                   [&](const auto& one) { return former(one) != former(journals[0]); });
    };
    if (several()) std::erase_if(journals, [&](const auto& one) { return one.contents.base.name != name; });
    if (several()) journals.clear();
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

QStringList JournalFolder::names(const QString& pattern) const {
    return isOff() ? QStringList() : QDir(path_).entryList({pattern + ending}, QDir::Files | QDir::Hidden);
}

std::optional<JournalFile> JournalFolder::opened(const QString& name, Unusable* unusable) const {
    const QString path = QDir(path_).filePath(name);
    std::error_code failure;
    auto file = JournalFile::open(path, &failure);
    if (failure && unusable) unusable->closed.emplace_back(path, failure);
    return file;
}

/// Adds the journal to the found ones, or clears it away.
void JournalFolder::look(JournalFile file, std::vector<PendingJournal>& found, Unusable* unusable) const {
    const QByteArray bytes = readable(file);
    auto contents = readJournal(bytes);
    if (!contents) return clearAway(std::move(file), bytes.isEmpty(), unusable);
    contents->dropSaved(contentHashOfFile);
    if (contents->groups.empty())
        file.remove();
    else
        found.push_back({std::move(file), std::move(*contents)});
}

void JournalFolder::clearAway(JournalFile file, bool isEmpty, Unusable* unusable) const {
    if (isEmpty) return file.remove();
    const QString place = setAside(std::move(file));
    if (unusable) unusable->damaged.append(place);
}

std::vector<PendingJournal> JournalFolder::pending(const QString& song, Unusable* unusable) const {
    auto found = ofThisName(song, unusable);
    if (!song.isEmpty()) lookForMoved(song, found);
    std::ranges::stable_sort(found, isOlder);
    return found;
}

std::vector<PendingJournal> JournalFolder::ofThisName(const QString& song, Unusable* unusable) const {
    std::vector<PendingJournal> found;
    for (const QString& name : names(key(song) + QStringLiteral("-*")))
        if (auto file = opened(name, unusable)) look(std::move(*file), found, unusable);
    return found;
}

// Where another song has taken the place, or the contents have changed, nothing is known of a move.
void JournalFolder::lookForMoved(const QString& song, std::vector<PendingJournal>& found) const {
    const QString own = key(song) + QLatin1Char('-');
    std::vector<PendingJournal> alike;
    QByteArray hash;
    for (const QString& name : names(QStringLiteral("*"))) {
        if (name.startsWith(own)) continue;
        auto file = opened(name, nullptr);
        auto contents = file ? readJournal(readable(*file)) : std::nullopt;
        if (!contents || contents->base.hash.isEmpty() || QFileInfo::exists(contents->base.path)) continue;
        if (hash.isEmpty()) hash = contentHashOfFile(song);
        contents->dropSaved(contentHashOfFile);
        if (contents->base.hash == hash && !contents->groups.empty())
            alike.push_back({std::move(*file), std::move(*contents)});
    }
    keepThoseOfOneSong(alike, QFileInfo(song).fileName());
    std::ranges::move(alike, std::back_inserter(found));
}

std::vector<PendingSong> JournalFolder::songs(Unusable* unusable) const {
    std::vector<PendingSong> found;
    if (isOff()) return found;
    for (const QString& name : names(QStringLiteral("*"))) {
        if (name.startsWith(neverSaved)) continue;
        const auto file = opened(name, unusable);
        auto contents = file ? readJournal(readable(*file)) : std::nullopt;
        if (!contents) continue;
        contents->dropSaved(contentHashOfFile);
        if (!contents->groups.empty()) addTo(found, *contents);
    }
    std::ranges::stable_sort(found, std::greater(), &PendingSong::lastChange);
    return found;
}

void JournalFolder::setAsideAll(const QString& song) const {
    for (auto& journal : ofThisName(song, nullptr))
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
