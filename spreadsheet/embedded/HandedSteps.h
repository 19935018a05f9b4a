#pragma once

#include "spreadsheet/StepKeeper.h"
#include "spreadsheet/embedded/History.h"

namespace zvonika {

/// A step of the user's as the port tells of it. `sheet`: the name of its sheet.
WorkStep workStep(const UndoStep& step, const QString& sheet);

} // namespace zvonika
