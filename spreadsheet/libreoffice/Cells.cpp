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
bool isKeptAsItIs(const QString& text) {
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), isControl);
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
    const CellRange piece = ReadAhead::pieceWith(cell);
    const auto [found, plain] = calls_.askAside(
        [piece](CalcEngine& calc) { return std::pair(calc.read(piece), !calc.hasFormulas()); });
    seen_.learnCells(piece, found, plain, acts);
    return found.at(cell.row - piece.first.row).at(cell.column - piece.first.column);
}

void Cells::noteWrite(const CellRange& range, const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (range == single(range.first) && text && isKeptAsItIs(*text))
        seen_.write(range.first, *text, calls_.acts());
    else
        seen_.forgetCells();
}

CellValue Cells::value(const QString& address) {
    return at(cellsAt(address).first);
}

void Cells::setValue(const QString& address, const CellValue& value) {
    refuseLongText(value);
    const CellRange range = cellsAt(address);
    if (isEmpty(value)) return clear(address);
    noteWrite(range, value);
    calls_.askAside([range = handedOver(range), value](CalcEngine& calc) {
        calc.write(range.first, filled(range, value));
    });
}

void Cells::setActiveValue(const CellValue& value) {
    refuseLongText(value);
    const CellPosition cell = cursor_.position();
    noteWrite(single(cell), value);
    calls_.askAside([cell, value](CalcEngine& calc) { calc.write(cell, {{value}}); });
}

void Cells::moveCursor(int rows, int columns) {
    cursor_.select(single(movedBy(cursor_.position(), rows, columns)));
}

void Cells::clear(const QString& address) {
    calls_.ask([range = cellsAt(address)](CalcEngine& calc) { calc.clear(range); });
}

void Cells::findAndActivate(const FindArguments& arguments) {
    const bool found = calls_.ask([arguments](CalcEngine& calc) {
        const auto cell = findCell(searched(calc), arguments);
        if (cell) calc.select(single(*cell));
        return cell.has_value();
    });
    if (!found) refuseNothingFound();
}

CellBlock Cells::read(const QString& address) {
    return calls_.askAside(
        [range = handedOver(cellsAt(address))](CalcEngine& calc) { return calc.read(range); });
}

void Cells::write(const QString& address, const CellBlock& block) {
    const CellPosition first = cellsAt(address).first;
    if (block.isEmpty() || block.first().isEmpty()) return;
    refuseOverEdge(first, block);
    refuseLongTexts(block);
    calls_.ask([first, block](CalcEngine& calc) { calc.write(first, block); });
}

void Cells::writeAtSelection(const CellBlock& block) {
    calls_.ask([block](CalcEngine& calc) {
        const CellRange selected = calc.selection();
        const bool one = block.size() == 1 && block.first().size() == 1;
        calc.write(selected.first, one ? filled(handedOver(selected), block.first().first()) : block);
    });
}

} // namespace zvonika
