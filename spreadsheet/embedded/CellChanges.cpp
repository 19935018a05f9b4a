#include "spreadsheet/embedded/CellChanges.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/SheetCells.h"

#include <algorithm>

namespace zvonika {

namespace {

constexpr qsizetype longestText = 32767; ///< UTF-16 units in one cell

void refuseLongText(const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (text && text->size() > longestText)
        refuse(QStringLiteral("Text je příliš dlouhý: do jedné buňky se vejde nejvýš 32 767 znaků."));
}

qsizetype widest(const CellBlock& block) {
    qsizetype columns = 0;
    for (const auto& row : block)
        columns = std::max(columns, row.size());
    return columns;
}

bool differs(const SheetCells& cells, int sheet, CellPosition cell, const CellValue& value) {
    return !isSame(cells.value(sheet, cell), value) || cells.isFormula(sheet, cell);
}

bool mayBePutBack(const SheetCells& cells, int sheet, CellPosition cell, const CellValue& value) {
    return !isSame(cells.value(sheet, cell), value) || !cells.isFormula(sheet, cell);
}

/// What becomes of the cells of a block for which `changes` says so.
template <typename Changes>
std::vector<CellChange> changesOf(const SheetCells& cells, int sheet, CellPosition first,
                                  const CellBlock& block, Changes changes) {
    std::vector<CellChange> result;
    for (qsizetype row = 0; row < block.size(); ++row)
        for (qsizetype column = 0; column < block[row].size(); ++column) {
            const CellPosition cell{first.row + static_cast<int>(row),
                                    first.column + static_cast<int>(column)};
            const CellValue& after = block[row][column];
            if (changes(cells, sheet, cell, after)) result.push_back(changeTo(cells, sheet, cell, after));
        }
    return result;
}

/// What of a range needs to be gone through to empty it; may be nothing (no rows or no columns).
CellRange usedPart(const SheetCells& cells, int sheet, const CellRange& range) {
    return {range.first,
            {std::min(range.last.row, cells.usedRows(sheet)),
             std::min(range.last.column, cells.usedColumns(sheet))}};
}

} // namespace

CellRange placeFor(CellPosition first, const CellBlock& block) {
    const auto rows = block.size(), columns = widest(block);
    if (!isOnSheet(first) || first.row + rows - 1 > lastRow || first.column + columns - 1 > lastColumn)
        refuse(QStringLiteral("Údaje se na list od buňky %1 nevejdou.").arg(absoluteAddress(first)));
    for (const auto& row : block)
        std::ranges::for_each(row, refuseLongText);
    return sized(first, static_cast<int>(rows), static_cast<int>(columns));
}

CellChange changeTo(const SheetCells& cells, int sheet, CellPosition cell, const CellValue& after) {
    return {cell, cells.value(sheet, cell), after, cells.isFormula(sheet, cell)};
}

std::vector<CellChange> changesBy(const SheetCells& cells, int sheet, CellPosition first,
                                  const CellBlock& block) {
    return changesOf(cells, sheet, first, block, differs);
}

std::vector<CellChange> changesBack(const SheetCells& cells, int sheet, CellPosition first,
                                    const CellBlock& block) {
    return changesOf(cells, sheet, first, block, mayBePutBack);
}

std::vector<CellChange> changesBy(const SheetCells& cells, int sheet, const CellRange& range,
                                  const CellValue& after) {
    refuseLongText(after);
    const CellRange part = handedOver(isEmpty(after) ? usedPart(cells, sheet, range) : range);
    std::vector<CellChange> changes;
    forCells(part, [&](CellPosition cell) {
        if (differs(cells, sheet, cell, after)) changes.push_back(changeTo(cells, sheet, cell, after));
    });
    return changes;
}

CellRange around(const std::vector<CellChange>& changes) {
    CellRange range = single(changes.front().cell);
    for (const auto& change : changes) {
        range.first.row = std::min(range.first.row, change.cell.row);
        range.first.column = std::min(range.first.column, change.cell.column);
        range.last.row = std::max(range.last.row, change.cell.row);
        range.last.column = std::max(range.last.column, change.cell.column);
    }
    return range;
}

std::vector<JournalChange> written(int sheet, const std::vector<CellChange>& changes) {
    std::vector<JournalChange> result;
    result.reserve(changes.size());
    for (const auto& change : changes)
        result.emplace_back(CellWritten{sheet, change.cell, change.after});
    return result;
}

std::vector<JournalChange> takenBack(int sheet, const std::vector<CellChange>& changes) {
    std::vector<JournalChange> result;
    result.reserve(changes.size());
    for (const auto& change : changes)
        result.emplace_back(CellWritten{sheet, change.cell, change.before, change.wasFormula});
    return result;
}

} // namespace zvonika
