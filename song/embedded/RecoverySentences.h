#pragma once

#include "song/embedded/journal/JournalContents.h"

#include <QString>

namespace zvonika {

/// Czech: 1 "změna", 2 to 4 "změny", otherwise "změn".
QString changesInWords(int count);

/// Asks whether to make the changes that a crash has left. `changedSince`: the file has other contents now
/// than the changes were made to.
QString recoveryQuestion(const QString& workbook, const JournalContents& journal, bool changedSince);
/// Some changes could not be made.
QString partlyRecovered(const QString& workbook, int refused);

} // namespace zvonika
