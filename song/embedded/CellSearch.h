#pragma once

#include "song/SpreadsheetApplication.h"
#include "song/embedded/Document.h"

#include <optional>

namespace zvonika {

/// Searches the selection of the active sheet from behind the active cell (before it, backwards), around its
/// end and up to the active cell itself; a selection of one cell stands for the whole sheet. Empty text finds
/// an empty cell, where formulas are looked at (-4123) also none that shows nothing. Formulas are compared by
/// what they show.
std::optional<CellPosition> findCell(const Document& document, const FindArguments& arguments);

} // namespace zvonika
