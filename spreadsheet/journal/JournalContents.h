#pragma once

#include "spreadsheet/journal/JournalEntry.h"

#include <functional>
#include <optional>
#include <vector>

namespace zvonika {

/// What a journal tells, up to the first frame that is torn or damaged.
struct JournalContents {
    JournalBase base;
    std::vector<JournalGroup> groups; ///< oldest first
    struct Save {
        JournalSave save;
        std::size_t groupsBefore = 0;
    };
    std::vector<Save> saves;
    quint32 entries = 0;  ///< whole frames; the number of the next one
    qint64 validSize = 0; ///< bytes up to the end of the last whole frame

    /// Drops the groups that are in a file by now: those before a save that took place, be it in the song's
    /// own file, whose hash is the base's from then on, or of everything under another name. `hashOf` gives
    /// the contents hash of a file as it is now, "" when it cannot be read.
    void dropSaved(const std::function<QByteArray(const QString& path)>& hashOf);
    /// Cells, rows, names and widths that the groups change; one written twice counts once.
    int changeCount() const;
    QDateTime lastChange() const; ///< of the newest group; there must be one
};

/// Nothing when not even the beginning can be read.
std::optional<JournalContents> readJournal(const QByteArray& file);

} // namespace zvonika
