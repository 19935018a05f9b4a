// The sheets and cells of a workbook.
#include "platform/ShownText.h"
#include "spreadsheet/libreoffice/ViewData.h"
#include "spreadsheet/libreoffice/uno/Book.h"
#include "spreadsheet/libreoffice/uno/Failures.h"

#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>

namespace zvonika {

namespace {

CellRange rangeOf(const css::table::CellRangeAddress& address) {
    return {{address.StartRow + 1, address.StartColumn + 1}, {address.EndRow + 1, address.EndColumn + 1}};
}

} // namespace

CellPosition usedEnd(const Ref<css::sheet::XSpreadsheet>& sheet, Keeper& keeper) {
    const auto cursor = keeper.keep(sheet->createCursor());
    as<css::sheet::XUsedAreaCursor>(cursor)->gotoEndOfUsedArea(false);
    return rangeOf(as<css::sheet::XCellRangeAddressable>(cursor)->getRangeAddress()).last;
}

Ref<css::sheet::XSpreadsheet> Book::sheet() const {
    const auto active = keeper_.keep(view_->getActiveSheet());
    // The view of a workbook that is being closed answers, but has nothing to show any more.
    if (!active.is()) throw css::lang::DisposedException();
    return active;
}

int Book::activeSheet() const {
    return as<css::sheet::XCellRangeAddressable>(sheet())->getRangeAddress().Sheet + 1;
}

QStringList Book::sheetNames() const {
    const auto names = as<css::container::XNameAccess>(sheets_)->getElementNames();
    QStringList result;
    for (const auto& name : names)
        result << fromUno(name);
    return result;
}

// A name that Calc does not take is passed over in silence.
void Book::rename(const QString& name) {
    const auto named = as<css::container::XNamed>(sheet());
    named->setName(toUno(name));
    if (fromUno(named->getName()) != name)
        refuse(QStringLiteral("Jméno listu „%1“ nelze použít.").arg(shownName(name)));
}

void Book::selectSheet(int sheet) {
    const Ref<css::sheet::XSpreadsheet> wanted(
        as<css::container::XIndexAccess>(sheets_)->getByIndex(sheet - 1), css::uno::UNO_QUERY_THROW);
    view_->setActiveSheet(keeper_.keep(wanted));
    if (activeSheet() != sheet) refuse(QStringLiteral("List číslo %1 je skrytý.").arg(sheet));
}

CellPosition Book::cursor() const {
    rtl::OUString data;
    controller_->getViewData() >>= data;
    const auto found = cursorInViewData(fromUno(data));
    if (!found) throw css::lang::DisposedException();
    return found->cell;
}

// A marked block is a range; marked pieces and pictures are not, and the cursor stands for them.
CellRange Book::selection() const {
    const auto marked = as<css::sheet::XCellRangeAddressable>(keeper_.keep(model_->getCurrentSelection()));
    return marked.is() ? rangeOf(marked->getRangeAddress()) : single(cursor());
}

void Book::select(const CellRange& range) {
    dispatcher_->executeDispatch(as<css::frame::XDispatchProvider>(frame_), rtl::OUString(".uno:GoToCell"),
                                 rtl::OUString(), 0,
                                 properties(property("ToPoint", toUno(absoluteAddress(range)))));
}

bool Book::hasFormulas() const {
    const auto query = as<css::sheet::XCellRangesQuery>(sheet());
    const auto found =
        keeper_.keep(query->queryContentCells(static_cast<sal_Int16>(css::sheet::CellFlags::FORMULA)));
    return found->getRangeAddresses().hasElements();
}

CellPosition Book::used() const {
    return usedEnd(sheet(), keeper_);
}

QVector<QStringList> Book::formulas(const CellRange& range) const {
    const auto rows = as<css::sheet::XCellRangeFormula>(cellsOf(sheet(), range, keeper_))->getFormulaArray();
    QVector<QStringList> result;
    for (const auto& row : rows) {
        QStringList texts;
        for (const auto& text : row)
            texts << (text.startsWith("=") ? fromUno(text) : QString());
        result << texts;
    }
    return result;
}

void Book::clear(const CellRange& range) {
    namespace flags = css::sheet::CellFlags;
    as<css::sheet::XSheetOperation>(cellsOf(sheet(), range, keeper_))
        ->clearContents(flags::VALUE | flags::DATETIME | flags::STRING | flags::FORMULA);
}

} // namespace zvonika
