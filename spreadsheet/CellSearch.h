#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <functional>
#include <optional>

namespace zvonika {

/// The active sheet as a search sees it; the functions are asked about cells from 1 to one past what is used.
struct SearchedSheet {
    CellRange selection;
    CellPosition active;
    CellPosition used; ///< last row and last column with contents; 0 on an empty sheet
    std::function<CellValue(CellPosition)> value;
    std::function<QString(CellPosition)> shown; ///< the text that a search compares
    std::function<bool(CellPosition)> isFormula;
};

/// The part of the sheet that a search can come to: the selection, cut one behind what is used, or from the
/// first cell of the sheet when one cell is selected.
CellRange searchedPart(const SearchedSheet& sheet);

/// Searches the selection from behind the active cell (before it, backwards), around its end and up to the
/// active cell itself; a selection of one cell stands for the whole sheet. Empty text finds an empty cell,
/// where formulas are looked at (-4123) also none that shows nothing. Formulas are compared by what they
/// show.
std::optional<CellPosition> findCell(const SearchedSheet& sheet, const FindArguments& arguments);

} // namespace zvonika
