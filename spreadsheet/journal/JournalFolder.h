#pragma once

#include "spreadsheet/journal/JournalContents.h"
#include "spreadsheet/journal/JournalFile.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace zvonika {

/// A journal that a crash has left behind: its owner is gone, and it holds changes that are in no file.
struct PendingJournal {
    JournalFile file;
    JournalContents contents;
};

/// A song with changes that are in no file.
struct PendingSong {
    QString path; ///< native full name, as it was
    QString name;
    int changes = 0;
    QDateTime lastChange;
    bool there = true; ///< a file is where it was
};

/// The folder of a user's recovery journals. A song's journal is found by the song's full name, whatever
/// links lead to it, or by its contents; that of a workbook never saved by having none. Two programs can use
/// the folder at once.
class JournalFolder {
public:
    static constexpr int keptAside = 20; ///< journals kept after they were turned down; older ones go

    JournalFolder() = default; ///< keeps no journals
    /// `path`: native, made when first needed.
    explicit JournalFolder(const QString& path) : path_(path) {}

    bool isOff() const { return path_.isEmpty(); }
    /// Begins a journal with these first entries. std::system_error when that cannot be done.
    JournalFile begin(const QString& song, const QByteArray& contents) const;
    /// Journals with nothing to offer, though there may be something in them.
    struct Unusable {
        QStringList damaged; ///< names under which those have been put aside that hold no journal any more
        std::vector<std::pair<QString, std::error_code>> closed; ///< not given by the system, and why
    };

    /// Oldest first. What turns out to be saved by now, or empty, is deleted on the way. `song`: its native
    /// full name, "" for workbooks that were never saved. A song that was renamed or moved is known by its
    /// contents, when no song is where it was.
    std::vector<PendingJournal> pending(const QString& song, Unusable* unusable = nullptr) const;
    /// The songs, other than those never saved, that `pending` has something for; the last one changed first.
    /// Damaged journals are left until their song is opened.
    std::vector<PendingSong> songs(Unusable* unusable = nullptr) const;
    /// Puts a journal out of the way, into the folder "odmitnute", where nothing but the user finds it again.
    /// Its name there, or where it is if that fails.
    QString setAside(JournalFile file) const;
    void setAsideAll(const QString& song) const; ///< what is pending under this name

private:
    std::vector<PendingJournal> ofThisName(const QString& song, Unusable* unusable) const;
    QStringList names(const QString& pattern) const;
    std::optional<JournalFile> opened(const QString& name, Unusable* unusable) const;
    void look(JournalFile file, std::vector<PendingJournal>& found, Unusable* unusable) const;
    void lookForMoved(const QString& song, std::vector<PendingJournal>& found) const;
    void clearAway(JournalFile file, bool isEmpty, Unusable* unusable) const;

    QString path_;
};

} // namespace zvonika
