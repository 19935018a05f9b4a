#include "spreadsheet/embedded/History.h"

#include <algorithm>
#include <iterator>

namespace zvonika {

namespace {

using Kind = UndoStep::Kind;

/// Where the row stood before the step was done; 0 when it was not there.
int rowBefore(const UndoStep& step, int row) {
    if (step.kind == Kind::InsertRow) return row == step.row ? 0 : row - (row > step.row ? 1 : 0);
    if (step.kind == Kind::DeleteRow) return row + (row >= step.row ? 1 : 0);
    return row;
}

/// Where the row will stand when the step is done; 0 when the step takes it out.
int rowAfter(const UndoStep& step, int row) {
    if (step.kind == Kind::DeleteRow) return row == step.row ? 0 : row - (row > step.row ? 1 : 0);
    if (step.kind == Kind::InsertRow) return row + (row >= step.row ? 1 : 0);
    return row;
}

void dropCells(UndoStep& step, int row, const CellRange& range) {
    if (step.kind != Kind::Cells) return;
    std::erase_if(step.changes, [&](const CellChange& change) {
        return change.cell.row == row && change.cell.column >= range.first.column &&
               change.cell.column <= range.last.column;
    });
}

/// From the newest step on, follows a row through the steps and takes its cells out of them. `through` gives
/// the row on the other side of a step; where there is none, this step and those beyond it can no longer be
/// made.
void forgetIn(std::vector<UndoStep>& steps, int sheet, int row, const CellRange& range,
              int (*through)(const UndoStep&, int)) {
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (step->sheet != sheet) continue;
        row = through(*step, row);
        if (row == 0) {
            steps.erase(steps.begin(), step.base());
            return;
        }
        dropCells(*step, row, range);
    }
}

void dropEmpty(std::vector<UndoStep>& steps) {
    std::erase_if(steps,
                  [](const UndoStep& step) { return step.kind == Kind::Cells && step.changes.empty(); });
}

const UndoStep* moveLast(std::vector<UndoStep>& from, std::vector<UndoStep>& to) {
    if (from.empty()) return nullptr;
    to.push_back(std::move(from.back()));
    from.pop_back();
    return &to.back();
}

QString lastLabel(const std::vector<UndoStep>& steps) {
    return steps.empty() ? QString() : steps.back().label;
}

} // namespace

void History::add(UndoStep step) {
    undone_.clear();
    if (done_.size() == longest) done_.erase(done_.begin());
    done_.push_back(std::move(step));
}

const UndoStep* History::back() {
    return moveLast(done_, undone_);
}

const UndoStep* History::again() {
    return moveLast(undone_, done_);
}

void History::forget(int sheet, const CellRange& range) {
    for (int row = range.first.row; row <= range.last.row && !(done_.empty() && undone_.empty()); ++row) {
        forgetIn(done_, sheet, row, range, rowBefore);
        forgetIn(undone_, sheet, row, range, rowAfter);
    }
    dropEmpty(done_);
    dropEmpty(undone_);
}

QString History::backLabel() const {
    return lastLabel(done_);
}

QString History::againLabel() const {
    return lastLabel(undone_);
}

} // namespace zvonika
