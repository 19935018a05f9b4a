#include "spreadsheet/embedded/SheetCursor.h"

#include <algorithm>
#include <stdexcept>

namespace zvonika {

namespace {

/// The active sheet of the file; where that one is hidden, the first that is not.
int shownFirst(const xls::Workbook& book) {
    const int active = std::clamp(book.activeSheet(), 0, book.sheetCount() - 1);
    if (!book.isSheetHidden(active)) return active;
    for (int sheet = 0; sheet < book.sheetCount(); ++sheet)
        if (!book.isSheetHidden(sheet)) return sheet;
    return active;
}

} // namespace

SheetCursor::SheetCursor(const xls::Workbook& book) {
    for (int sheet = 0; sheet < book.sheetCount(); ++sheet) {
        const auto cell = book.activeCell(sheet);
        const CellPosition active{cell.row + 1, cell.column + 1};
        selections_.push_back({single(active), active});
    }
    activeSheet_ = shownFirst(book) + 1;
}

void SheetCursor::storeIn(xls::Workbook& book) const {
    for (int sheet = 1; sheet <= book.sheetCount(); ++sheet) {
        const CellPosition cell = selection(sheet).active;
        book.setActiveCell(sheet - 1, {cell.row - 1, cell.column - 1});
    }
    book.setActiveSheet(activeSheet_ - 1);
}

void SheetCursor::requireSheet(int sheet) const {
    if (sheet < 1 || sheet > static_cast<int>(selections_.size())) throw std::out_of_range("no such sheet");
}

void SheetCursor::activateSheet(int sheet) {
    requireSheet(sheet);
    if (sheet == activeSheet_) return;
    activeSheet_ = sheet;
    Q_EMIT sheetActivated();
    Q_EMIT selectionChanged();
}

Selection SheetCursor::selection(int sheet) const {
    requireSheet(sheet);
    return selections_[static_cast<std::size_t>(sheet - 1)];
}

void SheetCursor::select(const CellRange& range, CellPosition active) {
    if (!isOnSheet(range.first) || !isOnSheet(range.last) || !range.contains(active))
        throw std::out_of_range("selection outside the sheet");
    auto& selection = selections_[static_cast<std::size_t>(activeSheet_ - 1)];
    if (selection == Selection{range, active}) return;
    selection = {range, active};
    Q_EMIT selectionChanged();
}

} // namespace zvonika
