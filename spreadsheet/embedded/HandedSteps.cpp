#include "spreadsheet/embedded/HandedSteps.h"

namespace zvonika {

namespace {

RowMoved rowOf(const UndoStep& step, const QString& sheet) {
    RowMoved row{sheet, step.row, step.kind == UndoStep::Kind::InsertRow, {}};
    for (const CellChange& change : step.changes)
        if (!isEmpty(change.before)) row.contents.push_back({sheet, change.cell, change.before, {}});
    return row;
}

} // namespace

WorkStep workStep(const UndoStep& step, const QString& sheet) {
    if (step.kind != UndoStep::Kind::Cells) return {step.label, {rowOf(step, sheet)}};
    WorkStep result{step.label, {}};
    result.parts.reserve(step.changes.size());
    for (const CellChange& change : step.changes)
        result.parts.emplace_back(CellTurned{sheet, change.cell, change.before, change.after});
    return result;
}

} // namespace zvonika
