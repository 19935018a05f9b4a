#pragma once

#include "spreadsheet/embedded/History.h"
#include "spreadsheet/journal/JournalEntry.h"

#include <vector>

namespace zvonika {

class SheetCells;

// What a write would change, worked out before anything is written. A cell that would stay as it is does not
// count; a formula differs from every value, also from the one that it shows. Refusals are AutomationError
// 1004.

/// The place of a block with its first cell at `first`; refuses one that crosses the edge of the sheet, and a
/// text too long for a cell.
CellRange placeFor(CellPosition first, const CellBlock& block);
std::vector<CellChange> changesBy(const SheetCells& cells, int sheet, CellPosition first,
                                  const CellBlock& block);
/// All cells of the range to one value. Refuses a text too long for a cell, and a range too large unless it
/// is emptied.
std::vector<CellChange> changesBy(const SheetCells& cells, int sheet, const CellRange& range,
                                  const CellValue& after);
/// What putting this block back may change: also a cell that shows its value already, if by no formula.
std::vector<CellChange> changesBack(const SheetCells& cells, int sheet, CellPosition first,
                                    const CellBlock& block);
CellChange changeTo(const SheetCells& cells, int sheet, CellPosition cell, const CellValue& after);

/// The smallest range with all of them; there must be one.
CellRange around(const std::vector<CellChange>& changes);

/// For the journal: the changes made, and taken back.
std::vector<JournalChange> written(int sheet, const std::vector<CellChange>& changes);
std::vector<JournalChange> takenBack(int sheet, const std::vector<CellChange>& changes);

} // namespace zvonika
