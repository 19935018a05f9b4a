#include "spreadsheet/libreoffice/PacedCursor.h"

#include "spreadsheet/SpreadsheetApplication.h"

#include <utility>

namespace zvonika {

namespace {
constexpr int frame = 40; ///< ms between two pictures of a moving cursor
}

PacedCursor::PacedCursor(CalcCalls& calls, ReadAhead& seen) : calls_(calls), seen_(seen) {
    calls_.settleWith([this] { settle(); });
    untilShown_.setSingleShot(true);
    QObject::connect(&untilShown_, &QTimer::timeout, [this] { showLater(); });
}

PacedCursor::~PacedCursor() {
    calls_.settleWith({});
}

void PacedCursor::select(const CellRange& range) {
    calls_.requireRunning();
    const unsigned moves = calls_.moves();
    owed_ = Owed{range, moves};
    if (followsSoon(moves)) {
        if (!untilShown_.isActive()) untilShown_.start(frame);
        return;
    }
    show();
    shownAfter_ = moves;
    sinceShown_.start();
}

bool PacedCursor::followsSoon(unsigned moves) const {
    return sinceShown_.isValid() && !sinceShown_.hasExpired(frame) && moves == shownAfter_;
}

CellPosition PacedCursor::position() {
    calls_.requireRunning();
    if (owed_ && owed_->moves == calls_.moves()) return owed_->range.first;
    const unsigned acts = calls_.acts();
    if (const auto seen = seen_.cursor(acts)) return *seen;
    const CellPosition found = calls_.askAside([](CalcEngine& calc) { return calc.cursor(); });
    seen_.learnCursor(found, acts);
    return found;
}

void PacedCursor::show() {
    const auto due = std::exchange(owed_, std::nullopt);
    if (!due || due->moves != calls_.moves()) return;
    seen_.forgetCursor();
    calls_.askAside([range = due->range](CalcEngine& calc) { calc.select(range); });
}

void PacedCursor::showLater() {
    if (calls_.busy()) return untilShown_.start();
    try {
        show();
    } catch (const AutomationError&) { // the next call tells
    }
}

void PacedCursor::settle() {
    show();
    seen_.forget();
    sinceShown_.invalidate();
}

} // namespace zvonika
