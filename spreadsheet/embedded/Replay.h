#pragma once

#include "spreadsheet/journal/JournalEntry.h"

#include <vector>

namespace zvonika {

class SheetCells;

/// Makes the changes that a journal tells of. How many the workbook did not allow.
int replay(SheetCells& cells, const std::vector<JournalGroup>& groups);

} // namespace zvonika
