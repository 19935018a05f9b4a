#pragma once

#include <QString>

namespace zvonika {

// What Calc's notion of a cell means to the program. Calc has no truth values: a 0 or 1 is one where the cell
// shows it as a word, or where its formula is one of those that stand for truth values in files.

/// The number may stand for a truth value.
bool isZeroOrOne(double number);
/// Whether a cell that holds 0 or 1 is a truth value, by the text that it shows and its formula ("=TRUE()").
bool showsTruth(const QString& shown, const QString& formula);
/// The error that a cell shows, as the file format has it; "#N/A" for what it has no name for ("Err:508").
QString errorShown(const QString& shown);

} // namespace zvonika
