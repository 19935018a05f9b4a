#pragma once

#include "spreadsheet/SheetColumns.h"

namespace zvonika {

/// What the columns of a song tell a player, for the window of a spreadsheet.
SheetColumns popisSloupcu();

} // namespace zvonika
