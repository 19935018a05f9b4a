// The sheets and cells of a workbook.
#include "platform/ShownText.h"
#include "spreadsheet/libreoffice/ViewData.h"
#include "spreadsheet/libreoffice/uno/Book.h"
#include "spreadsheet/libreoffice/uno/Failures.h"

#include <algorithm>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetAnnotationsSupplier.hpp>
#include <com/sun/star/sheet/XSheetOperation.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/XProtectable.hpp>

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

bool containsFormulas(const Ref<css::sheet::XSpreadsheet>& sheet, Keeper& keeper) {
    const auto found = keeper.keep(as<css::sheet::XCellRangesQuery>(sheet)->queryContentCells(
        static_cast<sal_Int16>(css::sheet::CellFlags::FORMULA)));
    return found->getRangeAddresses().hasElements();
}

QVector<QStringList> formulasIn(const Ref<css::table::XCellRange>& cells) {
    const auto rows = as<css::sheet::XCellRangeFormula>(cells)->getFormulaArray();
    QVector<QStringList> result;
    for (const auto& row : rows) {
        QStringList texts;
        for (const auto& text : row)
            texts << (text.startsWith("=") ? fromUno(text) : QString());
        result << texts;
    }
    return result;
}

Ref<css::sheet::XSpreadsheet> Book::sheet() const {
    const auto active = keeper_.keep(view_->getActiveSheet());
    // The view of a workbook that is being closed answers, but has nothing to show any more.
    if (!active.is()) throw css::lang::DisposedException();
    return active;
}

/// Their indexes, from 0.
std::vector<sal_Int32> Book::visibleSheets() const {
    const auto all = as<css::container::XIndexAccess>(sheets_);
    std::vector<sal_Int32> visible;
    for (sal_Int32 i = 0; i < all->getCount(); ++i) {
        const Ref<css::beans::XPropertySet> sheet(all->getByIndex(i), css::uno::UNO_QUERY_THROW);
        bool shown = true;
        keeper_.keep(sheet)->getPropertyValue(rtl::OUString("IsVisible")) >>= shown;
        if (shown) visible.push_back(i);
    }
    return visible;
}

int Book::activePlace() const {
    return as<css::sheet::XCellRangeAddressable>(sheet())->getRangeAddress().Sheet + 1;
}

int Book::activeSheet() const {
    const auto sheets = visibleSheets();
    const sal_Int32 active = activePlace() - 1;
    return static_cast<int>(std::ranges::find(sheets, active) - sheets.begin()) + 1;
}

QStringList Book::sheetNames() const {
    const auto names = as<css::container::XNameAccess>(sheets_)->getElementNames();
    QStringList result;
    for (const sal_Int32 index : visibleSheets())
        if (index < names.getLength()) result << fromUno(names[index]);
    return result;
}

// A name that Calc does not take is passed over in silence.
void Book::rename(const QString& name) {
    const UsersSteps::Aside aside(steps_);
    const auto named = as<css::container::XNamed>(sheet());
    named->setName(toUno(name));
    if (fromUno(named->getName()) != name)
        refuse(QStringLiteral("Jméno listu „%1“ nelze použít.").arg(shownName(name)));
}

void Book::selectSheet(int sheet) {
    const sal_Int32 index = visibleSheets().at(static_cast<std::size_t>(sheet - 1));
    const Ref<css::sheet::XSpreadsheet> wanted(as<css::container::XIndexAccess>(sheets_)->getByIndex(index),
                                               css::uno::UNO_QUERY_THROW);
    view_->setActiveSheet(keeper_.keep(wanted));
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
    const UserEvents::Doing doing(*events_, UserEvents::Doing::Of::EntryTyped);
    dispatcher_->executeDispatch(as<css::frame::XDispatchProvider>(frame_), rtl::OUString(".uno:GoToCell"),
                                 rtl::OUString(), 0,
                                 properties(property("ToPoint", toUno(absoluteAddress(range)))));
}

bool Book::hasFormulas() const {
    return containsFormulas(sheet(), keeper_);
}

CellPosition Book::used() const {
    return usedEnd(sheet(), keeper_);
}

QVector<QStringList> Book::formulas(const CellRange& range) const {
    return formulasIn(cellsOf(sheet(), range, keeper_));
}

bool Book::typing() {
    const UserEvents::Doing doing(*events_, UserEvents::Doing::Of::WaitingUser);
    const bool open = entry_.isOpen();
    noEntry_ = open ? std::chrono::steady_clock::time_point() : std::chrono::steady_clock::now();
    return open;
}

// What is being typed in a cell is taken over when the cursor leaves it. By steps: the user may go on with
// the keyboard in between.
void Book::commitEntry() {
    if (!typing()) return;
    const UserEvents::Doing doing(*events_, UserEvents::Doing::Of::EntryTyped);
    for (const char* step : {".uno:GoDown", ".uno:GoUp"})
        dispatcher_->executeDispatch(as<css::frame::XDispatchProvider>(frame_),
                                     rtl::OUString::createFromAscii(step), rtl::OUString(), 0,
                                     properties(property("By", sal_Int16(1))));
}

// To look, Calc has to come to rest and to paint. Nobody begins to type while a run writes.
void Book::commitEntryIn(const CellRange& written) {
    constexpr std::chrono::milliseconds moment{100};
    if (std::chrono::steady_clock::now() - noEntry_ > moment && written.contains(cursor())) commitEntry();
}

/// The cells are the program's from now on.
void Book::takeOver(const CellRange& range) {
    commitEntryIn(range);
    steps_.makeWay(range);
}

void Book::write(CellPosition first, const CellBlock& block) {
    takeOver(sized(first, static_cast<int>(block.size()), static_cast<int>(block.first().size())));
    values_.write(sheet(), first, block);
}

// A block write drops comments, and it fails as a whole where one of its cells may not be written.
bool Book::holdSheet() {
    held_ = sheet();
    const auto comments = as<css::sheet::XSheetAnnotationsSupplier>(held_)->getAnnotations();
    return !as<css::container::XIndexAccess>(keeper_.keep(comments))->hasElements() &&
           !as<css::util::XProtectable>(held_)->isProtected() && !hasFormulas();
}

void Book::writeHeld(const QVector<PlacedBlock>& blocks) {
    const auto target = held_.is() ? held_ : sheet();
    for (const auto& [first, cells] : blocks) {
        takeOver(sized(first, static_cast<int>(cells.size()), static_cast<int>(cells.first().size())));
        values_.write(target, first, cells);
    }
}

// What Calc does not move it says by a failure without a word.
void Book::moveRows(int row, bool down) {
    commitEntry();
    const auto target = sheet();
    try {
        const UsersSteps::Aside aside(steps_);
        const auto rows = keeper_.keep(as<css::table::XColumnRowRange>(target)->getRows());
        down ? rows->insertByIndex(row - 1, 1) : rows->removeByIndex(row - 1, 1);
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const css::uno::Exception& failure) {
        logFailure(failure);
        refuse(
            QStringLiteral("LibreOffice Calc řádky neposunul: list je zamčený, nebo stojí v cestě maticový "
                           "vzorec."));
    }
    steps_.forget();
}

void Book::clear(const CellRange& range) {
    takeOver(range);
    const UsersSteps::Aside aside(steps_);
    namespace flags = css::sheet::CellFlags;
    as<css::sheet::XSheetOperation>(cellsOf(sheet(), range, keeper_))
        ->clearContents(flags::VALUE | flags::DATETIME | flags::STRING | flags::FORMULA);
}

} // namespace zvonika
