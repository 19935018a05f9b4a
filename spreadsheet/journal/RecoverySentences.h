#pragma once

#include "spreadsheet/journal/JournalContents.h"

#include <QString>

#include <system_error>

namespace zvonika {

/// Czech: 1 "změna", 2 to 4 "změny", otherwise "změn".
QString changesInWords(int count);
QString momentInWords(const QDateTime& when); ///< "22. 11. 2026 v 3:07", local time

/// Asks whether to make the changes that were left unsaved. `changedSince`: the file has other contents now
/// than the changes were made to.
QString recoveryQuestion(const QString& workbook, const JournalContents& journal, bool changedSince);
/// A journal that is damaged from its beginning, and where it lies. `workbook`: "" when it was never saved.
QString unreadableJournal(const QString& workbook, const QString& place);
/// A journal that the system does not give, and where it lies. `workbook`: as above.
QString closedJournal(const QString& workbook, const QString& place, const std::error_code& error);
QString closedJournal(const QString& place, const std::error_code& error); ///< of a song that is not known
/// Some changes could not be made.
QString partlyRecovered(const QString& workbook, int refused);
/// Why changes cannot be recorded for the case of a crash.
QString journalRefused(const std::error_code& error);

} // namespace zvonika
