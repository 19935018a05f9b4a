#pragma once

#include "song/CellValue.h"

namespace zvonika {

/// A cell's text as the sheet shows it and as the user edits it: numbers with a decimal comma.
QString shownText(const CellValue& value);

/// What a typed text means: a number where it is one to the last character (decimal comma or point), nothing when
/// it is empty, otherwise a text. A leading apostrophe makes it a text without that apostrophe.
CellValue typedValue(const QString& typed);

/// The text to edit such that typing nothing keeps the value: a text that would be taken for something else gets
/// its apostrophe.
QString editedText(const CellValue& value);

} // namespace zvonika
