#pragma once

#include "spreadsheet/Address.h"

#include <QStringView>

#include <optional>

namespace zvonika {

struct SheetCursor {
    int sheet = 1;
    CellPosition cell;
};

/// The active sheet and its cursor, read from the text in which Calc keeps the state of a view
/// ("100/60/0;1;tw:270;2/30/0/0/...;0/4/...": zoom, active sheet, width of the tabs, then a field for each
/// sheet that begins with column and row, all from 0; the separator is "+" where a row is beyond the 8192nd).
/// Nothing when the text is none of that.
std::optional<SheetCursor> cursorInViewData(QStringView data);

} // namespace zvonika
