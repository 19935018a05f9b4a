#include "spreadsheet/libreoffice/uno/UsersSteps.h"

#include "spreadsheet/libreoffice/uno/Failures.h"

#include <algorithm>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/util/XChangesNotifier.hpp>

namespace zvonika {

namespace {

constexpr std::size_t mostRanges = 1000; ///< after that many acts the first ones become one range

bool overlap(const CellRange& a, const CellRange& b) {
    return a.first.row <= b.last.row && b.first.row <= a.last.row && a.first.column <= b.last.column &&
           b.first.column <= a.last.column;
}

CellRange around(const CellRange& a, const CellRange& b) {
    return {{std::min(a.first.row, b.first.row), std::min(a.first.column, b.first.column)},
            {std::max(a.last.row, b.last.row), std::max(a.last.column, b.last.column)}};
}

} // namespace

bool UsersCells::reach(const CellRange& range) const {
    const std::scoped_lock lock(mutex_);
    return std::ranges::any_of(ranges_, [&](const CellRange& changed) { return overlap(changed, range); });
}

void UsersCells::forget() {
    const std::scoped_lock lock(mutex_);
    ranges_.clear();
}

void UsersCells::changesOccurred(const css::util::ChangesEvent& event) {
    for (const auto& change : event.Changes) {
        Ref<css::uno::XInterface> changed;
        if (!(change.ReplacedElement >>= changed)) continue;
        const auto range = as<css::sheet::XCellRangeAddressable>(keeper_.keep(changed));
        if (!range.is()) continue;
        const auto place = keeper_.keep(range)->getRangeAddress();
        const std::scoped_lock lock(mutex_);
        ranges_.push_back(
            {{place.StartRow + 1, place.StartColumn + 1}, {place.EndRow + 1, place.EndColumn + 1}});
        if (ranges_.size() <= mostRanges) continue;
        ranges_[1] = around(ranges_[0], ranges_[1]);
        ranges_.erase(ranges_.begin());
    }
}

UsersSteps::UsersSteps(const Ref<css::frame::XModel>& model, Keeper& keeper)
    : cells_(new UsersCells(keeper)) {
    const auto supplier = as<css::document::XUndoManagerSupplier>(model);
    if (supplier.is()) manager_ = supplier->getUndoManager();
    const auto changes = as<css::util::XChangesNotifier>(model);
    if (changes.is()) changes->addChangesListener(cells_.get());
}

UsersSteps::Aside::Aside(const UsersSteps& steps) : steps_(steps) {
    if (steps_.manager_.is()) steps_.manager_->lock();
}

UsersSteps::Aside::~Aside() {
    try {
        if (steps_.manager_.is()) steps_.manager_->unlock();
    } catch (const css::uno::Exception&) { // gone with its workbook
    }
}

void UsersSteps::makeWay(const CellRange& range) {
    if (cells_->reach(range)) forget();
}

void UsersSteps::forget() {
    try {
        cells_->forget();
        if (manager_.is()) manager_->clear();
    } catch (const css::uno::Exception& failure) {
        logFailure(failure);
    }
}

} // namespace zvonika
