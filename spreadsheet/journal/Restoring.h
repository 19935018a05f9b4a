#pragma once

#include "spreadsheet/LiveSpreadsheet.h"
#include "spreadsheet/journal/JournalEntry.h"

#include <vector>

namespace zvonika {

/// Turns the active workbook of a live spreadsheet into what a journal has made of it: block by block, as one
/// call costs more than many cells.
class Restoring {
public:
    explicit Restoring(LiveSpreadsheet& live) : live_(live) {}

    /// `changes`: as `differences` gives them. How many were refused. Throws AutomationError 91 when the
    /// spreadsheet goes meanwhile.
    int write(const WorkbookImage& now, const std::vector<JournalChange>& changes);
    /// Puts the cursor into column B of that cell's row.
    void showRow(const WorkbookImage& now, const CellWritten& cell);

private:
    int writeSheet(const QString& name, const std::vector<CellWritten>& cells);
    bool done(const std::function<void()>& call);

    LiveSpreadsheet& live_;
};

} // namespace zvonika
