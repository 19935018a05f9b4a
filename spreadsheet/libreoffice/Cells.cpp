#include "spreadsheet/libreoffice/Cells.h"

#include "spreadsheet/CellSearch.h"
#include "spreadsheet/Refusals.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace zvonika {

namespace {

constexpr qsizetype longestText = 32767; ///< of a cell in the format .xls

void refuseLongText(const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (text && text->size() > longestText) refuse(QStringLiteral("Text je pro jednu buňku příliš dlouhý."));
}

void refuseLongTexts(const CellBlock& block) {
    for (const auto& row : block)
        for (const CellValue& value : row)
            refuseLongText(value);
}

void refuseOverEdge(CellPosition first, const CellBlock& block) {
    const CellPosition last{first.row + static_cast<int>(block.size()) - 1,
                            first.column + static_cast<int>(block.first().size()) - 1};
    if (!isOnSheet(last)) refuse(QStringLiteral("Oblast přesahuje okraj listu."));
}

CellBlock filled(const CellRange& range, const CellValue& value) {
    return CellBlock(range.rows(), QVector<CellValue>(range.columns(), value));
}

bool isControl(QChar c) {
    return c.unicode() < 0x20;
}

/// Calc keeps it letter by letter.
bool isKeptAsItIs(const CellValue& value) {
    if (isEmpty(value)) return true;
    const auto* text = std::get_if<QString>(&value);
    return text && std::none_of(text->begin(), text->end(), isControl);
}

/// Those cells of the ones that were read at `piece`.
CellBlock part(const CellBlock& cells, const CellRange& piece, const CellRange& range) {
    CellBlock block = cells.mid(range.first.row - piece.first.row, range.rows());
    for (auto& row : block)
        row = row.mid(range.first.column - piece.first.column, range.columns());
    return block;
}

CellValue plain(const CellValue& value) {
    return isEmpty(value) ? CellValue() : value;
}

/// The sheet as a search needs it, read in a few calls.
SearchedSheet searched(CalcEngine& calc) {
    SearchedSheet sheet{calc.selection(), calc.cursor(), calc.used(), {}, {}, {}};
    const CellRange part = handedOver(searchedPart(sheet));
    const auto values = std::make_shared<CellBlock>(calc.read(part));
    const auto formulas = std::make_shared<QVector<QStringList>>(calc.formulas(part));
    const auto value = [values, part](CellPosition cell) {
        return values->at(cell.row - part.first.row).at(cell.column - part.first.column);
    };
    sheet.value = value;
    sheet.shown = [value](CellPosition cell) { return cellText(value(cell)); };
    sheet.isFormula = [formulas, part](CellPosition cell) {
        return !formulas->at(cell.row - part.first.row).at(cell.column - part.first.column).isEmpty();
    };
    return sheet;
}

} // namespace

CellValue Cells::at(CellPosition cell) {
    calls_.requireRunning();
    const unsigned acts = calls_.acts();
    if (const auto seen = seen_.value(cell, acts)) return *seen;
    const CellRange piece = seen_.pieceWith(cell);
    return readAhead(piece, acts).at(cell.row - piece.first.row).at(cell.column - piece.first.column);
}

CellBlock Cells::readAhead(const CellRange& piece, unsigned acts) {
    auto [found, plain] = calls_.askAside(
        [piece](CalcEngine& calc) { return std::pair(calc.read(piece), !calc.hasFormulas()); });
    seen_.learnCells(piece, found, plain, acts);
    return found;
}

/// Takes a row of texts behind the program's back; false when it has to be written at once.
bool Cells::keep(CellPosition first, const CellBlock& block) {
    const auto& row = block.first();
    if (block.size() > 1 || !std::all_of(row.begin(), row.end(), isKeptAsItIs)) return false;
    CellPosition cell = first;
    for (const CellValue& value : row) {
        if (!behind_.keep(cell, plain(value))) return false;
        seen_.write(cell, plain(value), calls_.acts());
        ++cell.column;
    }
    return true;
}

CellValue Cells::value(const QString& address) {
    return at(cellsAt(address).first);
}

void Cells::setValue(const QString& address, const CellValue& value) {
    refuseLongText(value);
    writeSame(cellsAt(address), value);
}

void Cells::setActiveValue(const CellValue& value) {
    refuseLongText(value);
    writeSame(single(cursor_.position()), value);
}

void Cells::writeSame(const CellRange& range, const CellValue& value) {
    if (range == single(range.first) && keep(range.first, {{value}})) return;
    if (isEmpty(value)) return clear(range);
    seen_.forgetCells();
    calls_.askAside([range = handedOver(range), value](CalcEngine& calc) {
        calc.write(range.first, filled(range, value));
    });
}

void Cells::moveCursor(int rows, int columns) {
    cursor_.select(single(movedBy(cursor_.position(), rows, columns)));
}

void Cells::clear(const QString& address) {
    clear(cellsAt(address));
}

void Cells::clear(const CellRange& range) {
    calls_.ask([range](CalcEngine& calc) { calc.clear(range); });
}

void Cells::findAndActivate(const FindArguments& arguments) {
    const bool found = calls_.ask([arguments](CalcEngine& calc) {
        const auto cell = findCell(searched(calc), arguments);
        if (cell) calc.select(single(*cell));
        return cell.has_value();
    });
    if (!found) refuseNothingFound();
}

/// A row or two are soon asked for again, and so are those behind them.
CellBlock Cells::read(const QString& address) {
    calls_.requireRunning();
    const CellRange range = handedOver(cellsAt(address));
    const unsigned acts = calls_.acts();
    if (auto seen = seen_.block(range, acts)) return *seen;
    const CellRange piece = seen_.pieceWith(range.first);
    if (!piece.contains(range.last))
        return calls_.askAside([range](CalcEngine& calc) { return calc.read(range); });
    return part(readAhead(piece, acts), piece, range);
}

void Cells::write(const QString& address, const CellBlock& block) {
    const CellPosition first = cellsAt(address).first;
    if (block.isEmpty() || block.first().isEmpty()) return;
    refuseOverEdge(first, block);
    refuseLongTexts(block);
    if (keep(first, block)) return;
    calls_.ask([first, block](CalcEngine& calc) { calc.write(first, block); });
}

void Cells::insertRow(int row) {
    calls_.ask([row = rowAt(row)](CalcEngine& calc) {
        const int used = calc.used().row;
        if (row > used) return;
        if (used >= lastRow) refuse(QStringLiteral("Řádek nelze vložit: poslední řádek listu není prázdný."));
        calc.insertRow(row);
    });
}

void Cells::deleteRow(int row) {
    calls_.ask([row = rowAt(row)](CalcEngine& calc) {
        if (row <= calc.used().row) calc.deleteRow(row);
    });
}

void Cells::writeAtSelection(const CellBlock& block) {
    calls_.ask([block](CalcEngine& calc) {
        const CellRange selected = calc.selection();
        const bool one = block.size() == 1 && block.first().size() == 1;
        calc.write(selected.first, one ? filled(handedOver(selected), block.first().first()) : block);
    });
}

} // namespace zvonika
