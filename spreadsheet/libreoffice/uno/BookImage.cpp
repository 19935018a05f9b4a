// The whole workbook in a few calls.
#include "spreadsheet/libreoffice/uno/Book.h"

#include <algorithm>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>

namespace zvonika {

namespace {

constexpr int songColumns = 23;   ///< A to W
constexpr int mostCells = 250000; ///< of a sheet: more take longer than the user's next key

/// What is read of a sheet that ends there.
CellPosition known(CellPosition end) {
    const CellPosition all{lastRow, lastColumn};
    if (end.row * end.column <= mostCells) return all;
    return {std::min(lastRow, mostCells / songColumns), songColumns};
}

bool allEmpty(const CellBlock& cells) {
    return std::ranges::all_of(cells, [](const auto& row) { return std::ranges::all_of(row, isEmpty); });
}

} // namespace

SheetImage Book::imageOf(const Ref<css::sheet::XSpreadsheet>& sheet) {
    SheetImage image;
    image.name = fromUno(as<css::container::XNamed>(sheet)->getName());
    const CellPosition end = usedEnd(sheet, keeper_);
    image.known = known(end);
    const CellRange range{{1, 1},
                          {std::min(end.row, image.known.row), std::min(end.column, image.known.column)}};
    image.cells = values_.read(sheet, range);
    if (containsFormulas(sheet, keeper_))
        image.formulas = formulasIn(cellsOf(sheet, range, keeper_));
    else if (allEmpty(image.cells))
        image.cells.clear();
    return image;
}

WorkbookImage Book::image() {
    const OpenWorkbook file = description();
    WorkbookImage image{id_, file.name, file.path, file.modified, {}};
    const auto all = as<css::container::XIndexAccess>(sheets_);
    for (sal_Int32 i = 0; i < all->getCount(); ++i)
        image.sheets.append(imageOf(
            keeper_.keep(Ref<css::sheet::XSpreadsheet>(all->getByIndex(i), css::uno::UNO_QUERY_THROW))));
    return image;
}

} // namespace zvonika
