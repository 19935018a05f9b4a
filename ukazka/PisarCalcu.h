#pragma once

#include <QStringList>

namespace zvonika {

class Program;

/// The demonstration's player at Calc, whose window is not one of ours: types with the keyboard of the
/// display, by `xdotool`. Throws std::runtime_error when something does not happen.
///
/// Types each text into column A and Enter after it, from the row in which the cursor stands in column B, and
/// returns when Calc has taken the last one.
void pisDoCalcu(Program& program, const QStringList& texty);

} // namespace zvonika
