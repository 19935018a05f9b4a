#pragma once

#include "spreadsheet/WorkbookImage.h"
#include "spreadsheet/journal/JournalEntry.h"

#include <vector>

namespace zvonika {

/// What turns one state of a workbook into a later one. A formula that only shows something else now has not
/// changed; one that is new counts as the value it shows.
std::vector<JournalChange> differences(const WorkbookImage& before, const WorkbookImage& after);

/// Makes the changes that a journal tells of. How many the workbook did not allow; a column's width is not
/// part of the image and passes.
int replay(WorkbookImage& image, const std::vector<JournalGroup>& groups);

/// The cell that was written last; nothing when none was.
std::optional<CellWritten> lastWritten(const std::vector<JournalGroup>& groups);

} // namespace zvonika
