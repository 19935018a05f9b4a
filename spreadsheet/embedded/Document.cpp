#include "spreadsheet/embedded/Document.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/CellEntry.h"
#include "spreadsheet/embedded/XlsValue.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace zvonika {

namespace {

constexpr double widthUnits = 256.0; ///< of the file format in one character
constexpr double widestColumn = 255.0;

xls::CellRef ref(CellPosition cell) {
    return {cell.row - 1, cell.column - 1};
}

/// The engine knows only the case of ASCII letters.
bool isOtherSheetsName(const Document& document, int sheet, const QString& name) {
    for (int other = 1; other <= document.sheetCount(); ++other)
        if (other != sheet && document.sheetName(other).compare(name, Qt::CaseInsensitive) == 0) return true;
    return false;
}

} // namespace

int Document::sheetCount() const {
    return book_.sheetCount();
}

void Document::requireSheet(int sheet) const {
    if (sheet < 1 || sheet > sheetCount()) throw std::out_of_range("no such sheet");
}

QString Document::sheetName(int sheet) const {
    return QString::fromStdU16String(book_.sheetName(sheet - 1));
}

void Document::activateSheet(int sheet) {
    requireSheet(sheet);
    if (sheet == activeSheet_) return;
    activeSheet_ = sheet;
    Q_EMIT sheetsChanged();
    Q_EMIT selectionChanged();
}

void Document::renameSheet(int sheet, const QString& name) {
    if (name == sheetName(sheet)) return;
    try {
        if (isOtherSheetsName(*this, sheet, name)) throw std::invalid_argument("another sheet has this name");
        book_.renameSheet(sheet - 1, name.toStdU16String());
    } catch (const std::invalid_argument&) {
        refuse(QStringLiteral(
                   "Jméno listu „%1“ nelze použít: má mít 1 až 31 znaků, žádný z nich : \\ / ? * [ ], "
                   "nemá začínat ani končit apostrofem a v sešitu smí být jen jednou.")
                   .arg(name));
    }
    setModified(true);
    note({SheetRenamed{sheet, name}});
    Q_EMIT sheetsChanged();
}

Selection Document::selection(int sheet) const {
    requireSheet(sheet);
    return selections_[static_cast<std::size_t>(sheet - 1)];
}

void Document::select(const CellRange& range, CellPosition active) {
    if (!isOnSheet(range.first) || !isOnSheet(range.last) || !range.contains(active))
        throw std::out_of_range("selection outside the sheet");
    auto& selection = selections_[static_cast<std::size_t>(activeSheet_ - 1)];
    if (selection == Selection{range, active}) return;
    selection = {range, active};
    Q_EMIT selectionChanged();
}

CellValue Document::value(int sheet, CellPosition cell) const {
    return fromXls(book_.value(sheet - 1, ref(cell)));
}

bool Document::isFormula(int sheet, CellPosition cell) const {
    return book_.isFormula(sheet - 1, ref(cell));
}

CellBlock Document::block(int sheet, const CellRange& range) const {
    CellBlock block(range.rows());
    for (int row = 0; row < range.rows(); ++row) {
        auto& cells = block[row];
        cells.reserve(range.columns());
        for (int column = range.first.column; column <= range.last.column; ++column)
            cells.append(value(sheet, {range.first.row + row, column}));
    }
    return block;
}

QString Document::displayText(int sheet, CellPosition cell) const {
    return zvonika::displayText(value(sheet, cell));
}

QString Document::editText(int sheet, CellPosition cell) const {
    return zvonika::editText(value(sheet, cell));
}

int Document::usedRows(int sheet) const {
    return book_.usedRows(sheet - 1);
}

int Document::usedColumns(int sheet) const {
    return book_.usedColumns(sheet - 1);
}

double Document::columnWidth(int sheet, int column) const {
    return book_.columnWidth(sheet - 1, column - 1) / widthUnits;
}

void Document::putColumnWidth(int sheet, int column, double characters) {
    const double width = std::clamp(characters, 0.0, widestColumn) * widthUnits;
    book_.setColumnWidth(sheet - 1, column - 1, static_cast<int>(std::lround(width)));
}

void Document::setColumnWidth(int sheet, int column, double characters) {
    putColumnWidth(sheet, column, characters);
    setModified(true);
    note({ColumnResized{sheet, column, characters}});
    Q_EMIT columnWidthChanged(sheet, column);
}

void Document::changed(int sheet, const CellRange& range) {
    setModified(true);
    Q_EMIT cellsChanged(sheet, range);
}

void Document::setModified(bool modified) {
    if (std::exchange(modified_, modified) != modified) Q_EMIT modifiedChanged();
}

} // namespace zvonika
