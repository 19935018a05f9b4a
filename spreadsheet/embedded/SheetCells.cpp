#include "spreadsheet/embedded/SheetCells.h"

#include "platform/ShownText.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/CellEntry.h"
#include "spreadsheet/embedded/XlsValue.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <numeric>
#include <stdexcept>

namespace zvonika {

namespace {

constexpr double widthUnits = 256.0; ///< of the file format in one character
constexpr double widestColumn = 255.0;

xls::CellRef ref(CellPosition cell) {
    return {cell.row - 1, cell.column - 1};
}

CellPosition position(xls::CellRef cell) {
    return {cell.row + 1, cell.column + 1};
}

} // namespace

int SheetCells::sheetCount() const {
    return book_.sheetCount();
}

void SheetCells::requireSheet(int sheet) const {
    if (sheet < 1 || sheet > sheetCount()) throw std::out_of_range("no such sheet");
}

QString SheetCells::sheetName(int sheet) const {
    return QString::fromStdU16String(book_.sheetName(sheet - 1));
}

std::vector<int> SheetCells::visibleSheets() const {
    std::vector<int> visible;
    for (int sheet = 1; sheet <= sheetCount(); ++sheet)
        if (!book_.isSheetHidden(sheet - 1)) visible.push_back(sheet);
    if (!visible.empty()) return visible;
    visible.resize(static_cast<std::size_t>(sheetCount()));
    std::iota(visible.begin(), visible.end(), 1);
    return visible;
}

CellValue SheetCells::value(int sheet, CellPosition cell) const {
    return fromXls(book_.value(sheet - 1, ref(cell)));
}

bool SheetCells::isFormula(int sheet, CellPosition cell) const {
    return book_.isFormula(sheet - 1, ref(cell));
}

CellBlock SheetCells::block(int sheet, const CellRange& range) const {
    CellBlock block(range.rows());
    for (int row = 0; row < range.rows(); ++row) {
        auto& cells = block[row];
        cells.reserve(range.columns());
        for (int column = range.first.column; column <= range.last.column; ++column)
            cells.append(value(sheet, {range.first.row + row, column}));
    }
    return block;
}

QString SheetCells::displayText(int sheet, CellPosition cell) const {
    return zvonika::displayText(value(sheet, cell));
}

QString SheetCells::editText(int sheet, CellPosition cell) const {
    return zvonika::editText(value(sheet, cell));
}

int SheetCells::usedRows(int sheet) const {
    return book_.usedRows(sheet - 1);
}

int SheetCells::usedColumns(int sheet) const {
    return book_.usedColumns(sheet - 1);
}

double SheetCells::columnWidth(int sheet, int column) const {
    return book_.columnWidth(sheet - 1, column - 1) / widthUnits;
}

void SheetCells::setColumnWidth(int sheet, int column, double characters) {
    const double width = std::clamp(characters, 0.0, widestColumn) * widthUnits;
    book_.setColumnWidth(sheet - 1, column - 1, static_cast<int>(std::lround(width)));
}

// The engine knows only the case of ASCII letters.
bool SheetCells::isOtherSheetsName(int sheet, const QString& name) const {
    for (int other = 1; other <= sheetCount(); ++other)
        if (other != sheet && sheetName(other).compare(name, Qt::CaseInsensitive) == 0) return true;
    return false;
}

void SheetCells::renameSheet(int sheet, const QString& name) {
    try {
        if (isOtherSheetsName(sheet, name)) throw std::invalid_argument("another sheet has this name");
        book_.renameSheet(sheet - 1, name.toStdU16String());
    } catch (const std::invalid_argument&) {
        refuse(QStringLiteral(
                   "Jméno listu „%1“ nelze použít: má mít 1 až 31 znaků, žádný z nich : \\ / ? * [ ], "
                   "nemá začínat ani končit apostrofem a v sešitu smí být jen jednou.")
                   .arg(shownName(name)));
    }
}

void SheetCells::refuseArray(int sheet, CellPosition cell) const {
    const auto array = book_.arrayAround(sheet - 1, ref(cell));
    if (!array) refuse(QStringLiteral("Buňku %1 nelze změnit.").arg(absoluteAddress(cell)));
    const CellRange range{position(array->first), position(array->last)};
    refuse(QStringLiteral("Buňku %1 nelze změnit samotnou: patří k maticovému vzorci v oblasti %2.")
               .arg(absoluteAddress(cell), absoluteAddress(range)));
}

void SheetCells::put(int sheet, CellPosition cell, const CellValue& value) {
    try {
        book_.setValue(sheet - 1, ref(cell), toXls(value));
    } catch (const std::invalid_argument&) {
        refuseArray(sheet, cell);
    } catch (const std::bad_alloc&) {
        refuse(QStringLiteral("Buňku %1 nelze změnit: nestačí paměť počítače.").arg(absoluteAddress(cell)));
    }
}

void SheetCells::putBack(int sheet, CellPosition cell, const CellValue& shown) {
    book_.restoreCell(sheet - 1, ref(cell));
    if (value(sheet, cell) != shown) put(sheet, cell, shown);
}

void SheetCells::moveDown(int sheet, int row) {
    const int columns = usedColumns(sheet);
    for (int from = usedRows(sheet); from >= row; --from)
        for (int column = 1; column <= columns; ++column)
            put(sheet, {from + 1, column}, value(sheet, {from, column}));
    for (int column = 1; column <= columns; ++column)
        put(sheet, {row, column}, {});
}

void SheetCells::moveUp(int sheet, int row) {
    const int rows = usedRows(sheet), columns = usedColumns(sheet);
    for (int to = row; to < rows; ++to)
        for (int column = 1; column <= columns; ++column)
            put(sheet, {to, column}, value(sheet, {to + 1, column}));
    for (int column = 1; column <= columns; ++column)
        put(sheet, {rows, column}, {});
}

} // namespace zvonika
