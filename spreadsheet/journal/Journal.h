#pragma once

#include "spreadsheet/journal/JournalFolder.h"

#include <optional>

namespace zvonika {

/// The recovery journal of one open workbook. What is recorded outlives the process at once, and a power cut
/// after the next `flush`. The file comes into being with the first record and goes when everything is saved
/// or given up. A Journal that is destroyed leaves its file behind, so that what is in it can be offered
/// again.
///
/// Nothing here fails: what cannot be written is kept and tried again with the next record, and `trouble`
/// says why until it is written.
class Journal {
public:
    /// For a workbook as it stands in `base`.
    Journal(JournalFolder folder, JournalBase base) : folder_(std::move(folder)), base_(std::move(base)) {}

    const JournalFolder& folder() const { return folder_; }
    void record(std::vector<JournalChange> changes);
    /// The workbook has made the changes of this journal, which goes on as its own.
    void takeOver(PendingJournal pending);
    /// Returns when everything recorded is on the disk.
    void flush();
    /// Everything recorded so far is about to be put into this file. Flushes.
    void saving(const QString& path, const QByteArray& hash);
    /// ... and has been, or the user has given it up. The workbook is based on `base` from now on.
    void startAfresh(JournalBase base);
    void startAfresh() { startAfresh(base_); }

    /// Why changes are not on the disk; "" when they are.
    std::error_code trouble() const { return trouble_; }

private:
    template <typename Entry>
    void put(const Entry& entry);
    void write();

    JournalFolder folder_;
    JournalBase base_;
    std::optional<JournalFile> file_;
    quint32 nextNumber_ = 0;
    qint64 safeSize_ = 0;      ///< bytes of the file that are on the disk
    QByteArray unsafe_;        ///< what comes behind them
    qsizetype written_ = 0;    ///< how much of that is in the file
    bool flushFailed_ = false; ///< what is written may still not be on the disk
    std::error_code trouble_;
};

} // namespace zvonika
