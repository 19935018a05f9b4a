#include "spreadsheet/journal/ImageChanges.h"

#include <algorithm>

namespace zvonika {

namespace {

bool differs(const SheetImage& before, const SheetImage& after, CellPosition cell) {
    const QString formula = after.formula(cell);
    if (!formula.isEmpty()) return formula != before.formula(cell);
    return !before.formula(cell).isEmpty() || !isSame(before.value(cell), after.value(cell));
}

CellPosition larger(CellPosition a, CellPosition b) {
    return {std::max(a.row, b.row), std::max(a.column, b.column)};
}

CellPosition smaller(CellPosition a, CellPosition b) {
    return {std::min(a.row, b.row), std::min(a.column, b.column)};
}

void addDifferences(const SheetImage& before, const SheetImage& after, int sheet,
                    std::vector<JournalChange>& changes) {
    const CellPosition end = smaller(larger(before.used(), after.used()), smaller(before.known, after.known));
    for (CellPosition cell; cell.row <= end.row; ++cell.row)
        for (cell.column = 1; cell.column <= end.column; ++cell.column)
            if (differs(before, after, cell))
                changes.emplace_back(CellWritten{sheet, cell, after.value(cell)});
}

struct Change {
    WorkbookImage& image;
    const WorkbookImage& file; ///< as it was before the first of the changes

    void operator()(const CellWritten& change) const {
        SheetImage& sheet = image.sheets[change.sheet - 1];
        const SheetImage& before = file.sheets.at(change.sheet - 1);
        const bool asInFile = change.asInFile && !before.formula(change.cell).isEmpty();
        sheet.put(change.cell, asInFile ? before.value(change.cell) : change.value);
        if (asInFile && change.cell.row <= sheet.formulas.size())
            sheet.formulas[change.cell.row - 1][change.cell.column - 1] = before.formula(change.cell);
    }
    void operator()(const RowInserted& change) const {
        image.sheets[change.sheet - 1].moveRows(change.row, true);
    }
    void operator()(const RowDeleted& change) const {
        image.sheets[change.sheet - 1].moveRows(change.row, false);
    }
    void operator()(const SheetRenamed& change) const { image.sheets[change.sheet - 1].name = change.name; }
    void operator()(const ColumnResized&) const {}
};

} // namespace

std::vector<JournalChange> differences(const WorkbookImage& before, const WorkbookImage& after) {
    std::vector<JournalChange> changes;
    int sheet = 0;
    for (const SheetImage& now : after.sheets) {
        const SheetImage none;
        const bool known = before.hasSheet(++sheet);
        const SheetImage& old = known ? before.sheets.at(sheet - 1) : none;
        if (known && old.name != now.name) changes.emplace_back(SheetRenamed{sheet, now.name});
        addDifferences(old, now, sheet, changes);
    }
    return changes;
}

int replay(WorkbookImage& image, const std::vector<JournalGroup>& groups) {
    const WorkbookImage file = image;
    int refused = 0;
    for (const auto& group : groups)
        for (const auto& change : group.changes) {
            if (image.hasSheet(std::visit([](const auto& one) { return one.sheet; }, change)))
                std::visit(Change{image, file}, change);
            else
                ++refused;
        }
    return refused;
}

std::optional<CellWritten> lastWritten(const std::vector<JournalGroup>& groups) {
    for (auto group = groups.rbegin(); group != groups.rend(); ++group)
        for (auto change = group->changes.rbegin(); change != group->changes.rend(); ++change)
            if (const auto* cell = std::get_if<CellWritten>(&*change)) return *cell;
    return {};
}

} // namespace zvonika
