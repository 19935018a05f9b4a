#include "spreadsheet/libreoffice/WriteBehind.h"

#include "spreadsheet/SpreadsheetApplication.h"

#include <utility>

namespace zvonika {

WriteBehind::WriteBehind(CalcCalls& calls, ReadAhead& seen) : calls_(calls), seen_(seen) {
    calls_.deliverWith([this] { deliver(); });
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, [this] { deliverLater(); });
}

WriteBehind::~WriteBehind() {
    calls_.deliverWith({});
}

bool WriteBehind::keep(CellPosition cell, const CellValue& value) {
    calls_.requireRunning();
    // The user may have gone to another sheet; these cells are of the one before.
    if (failure_ || (!kept_.isEmpty() && acts_ != calls_.acts())) deliver();
    if (kept_.isEmpty()) {
        acts_ = calls_.acts();
        if (!holdSheet()) return false;
        soon_.start(0);
    }
    kept_.add(cell, value);
    return true;
}

bool WriteBehind::holdSheet() {
    if (const auto known = seen_.takesBlocks(acts_)) return *known;
    const bool takes =
        calls_.askNow(calls_.patience().cell, [](CalcEngine& calc) { return calc.holdSheet(); });
    seen_.learnTakesBlocks(takes, acts_);
    return takes;
}

void WriteBehind::deliver() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    if (kept_.isEmpty() || calls_.busy()) return;
    soon_.stop();
    const auto blocks = std::exchange(kept_, {}).blocks();
    try {
        calls_.askNow(calls_.patience().cell, [blocks](CalcEngine& calc) { calc.writeHeld(blocks); });
    } catch (...) {
        seen_.forget();
        throw;
    }
}

void WriteBehind::deliverLater() {
    try {
        deliver();
    } catch (const AutomationError&) {
        failure_ = std::current_exception(); // for the next call to tell
    }
}

} // namespace zvonika
