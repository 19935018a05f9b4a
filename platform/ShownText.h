#pragma once

#include <QString>

namespace zvonika {

// Names and texts that come from files are shown, not obeyed: a line break, a control sign, or a sign that
// turns the direction of writing stands in what is returned as a mark of its own ("↵", "[U+202E]"). Nothing
// but what the user sees goes through here; a name that is to be found again stays as it is.

/// One line. Of a text longer than `longest` characters the middle gives way to "…".
QString shownName(const QString& name, qsizetype longest = 400);
/// The name of a file without its folder.
QString shownFileName(const QString& nativePath);
/// As a window's title: without a place for the mark of unsaved changes.
QString shownTitle(const QString& name);
/// Several lines: breaks and tabulators stay what they are.
QString shownText(const QString& text, qsizetype longest = 2500);

} // namespace zvonika
