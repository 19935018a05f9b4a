#include "spreadsheet/embedded/History.h"

#include <utility>

namespace zvonika {

namespace {

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

bool History::clear() {
    const bool any = !done_.empty() || !undone_.empty();
    done_.clear();
    undone_.clear();
    return any;
}

std::vector<UndoStep> History::take() {
    return std::exchange(done_, {});
}

QString History::backLabel() const {
    return lastLabel(done_);
}

QString History::againLabel() const {
    return lastLabel(undone_);
}

} // namespace zvonika
