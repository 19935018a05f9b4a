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

/// The folder of a user's recovery journals. A song's journal is found by the song's full name, whatever
/// links lead to it; that of a workbook never saved by having none. Two programs can use the folder at once.
class JournalFolder {
public:
    static constexpr int keptAside = 20; ///< journals kept after they were turned down; older ones go

    JournalFolder() = default; ///< keeps no journals
    /// `path`: native, made when first needed.
    explicit JournalFolder(const QString& path) : path_(path) {}

    bool isOff() const { return path_.isEmpty(); }
    /// Begins a journal with these first entries. std::system_error when that cannot be done.
    JournalFile begin(const QString& song, const QByteArray& contents) const;
    /// Oldest first. What turns out to be saved by now, or empty, is deleted on the way. `song`: its native
    /// full name, "" for workbooks that were never saved. `unreadable` gets the names under which journals
    /// that cannot be read have been put aside.
    std::vector<PendingJournal> pending(const QString& song, QStringList* unreadable = nullptr) const;
    /// Puts a journal out of the way, into the folder "odmitnute", where nothing but the user finds it again.
    /// Its name there, or where it is if that fails.
    QString setAside(JournalFile file) const;
    void setAsideAll(const QString& song) const; ///< what is pending

private:
    void look(JournalFile file, std::vector<PendingJournal>& found, QStringList* unreadable) const;
    void clearAway(JournalFile file, bool isEmpty, QStringList* unreadable) const;

    QString path_;
};

} // namespace zvonika
