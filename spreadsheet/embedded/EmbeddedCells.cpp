#include "spreadsheet/CellSearch.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"

namespace zvonika {

namespace {

constexpr qint64 largestBlock = qint64{1} << 20; ///< cells handed over in one call

[[noreturn]] void refuse(const QString& sentence) {
    throw AutomationError(error::applicationDefined, sentence);
}

CellRange range(const QString& address) {
    if (const auto parsed = parseAddress(address)) return *parsed;
    refuse(QStringLiteral("„%1“ není adresa buněk.").arg(address));
}

CellBlock blockOf(const Document& document, const CellRange& range) {
    if (qint64{range.rows()} * range.columns() > largestBlock)
        refuse(QStringLiteral("Oblast je příliš velká."));
    return document.block(document.activeSheet(), range);
}

/// The active sheet of `document`, which outlives the result.
SearchedSheet searched(const Document& document) {
    const int sheet = document.activeSheet();
    const auto [range, active] = document.selection();
    return {range,
            active,
            {document.usedRows(sheet), document.usedColumns(sheet)},
            [&document, sheet](CellPosition cell) { return document.value(sheet, cell); },
            [&document, sheet](CellPosition cell) { return document.displayText(sheet, cell); },
            [&document, sheet](CellPosition cell) { return document.isFormula(sheet, cell); }};
}

} // namespace

QString EmbeddedApplication::activeSheetName() const {
    const Document& active = document();
    return active.sheetName(active.activeSheet());
}

void EmbeddedApplication::renameActiveSheet(const QString& name) {
    Document& active = document();
    active.renameSheet(active.activeSheet(), name);
}

int EmbeddedApplication::activeSheetIndex() const {
    return document().activeSheet();
}

int EmbeddedApplication::sheetCount() const {
    return document().sheetCount();
}

void EmbeddedApplication::selectSheet(int index) {
    Document& active = document();
    if (index < 1 || index > active.sheetCount())
        throw AutomationError(error::subscriptOutOfRange,
                              QStringLiteral("List číslo %1 v sešitu není.").arg(index));
    if (index == active.activeSheet()) return;
    const Session::ProgramCall call(session_);
    active.activateSheet(index);
}

void EmbeddedApplication::selectSheet(const QString& name) {
    Document& active = document();
    for (int sheet = 1; sheet <= active.sheetCount(); ++sheet)
        if (active.sheetName(sheet).compare(name, Qt::CaseInsensitive) == 0) return selectSheet(sheet);
    throw AutomationError(error::subscriptOutOfRange, QStringLiteral("List „%1“ v sešitu není.").arg(name));
}

void EmbeddedApplication::selectNextSheet() {
    Document& active = document();
    if (active.activeSheet() == active.sheetCount())
        throw AutomationError(error::objectNotSet, QStringLiteral("Za posledním listem už žádný není."));
    selectSheet(active.activeSheet() + 1);
}

void EmbeddedApplication::selectRange(const QString& address) {
    Document& active = document();
    const CellRange selected = range(address);
    active.select(selected, selected.first);
}

CellValue EmbeddedApplication::value(const QString& address) const {
    const Document& active = document();
    return active.value(active.activeSheet(), range(address).first);
}

void EmbeddedApplication::setValue(const QString& address, const CellValue& value) {
    Document& active = document();
    active.fill(active.activeSheet(), range(address), value);
}

CellValue EmbeddedApplication::activeCellValue() const {
    const Document& active = document();
    return active.value(active.activeSheet(), active.selection().active);
}

void EmbeddedApplication::setActiveCellValue(const CellValue& value) {
    Document& active = document();
    active.fill(active.activeSheet(), single(active.selection().active), value);
}

int EmbeddedApplication::activeRow() const {
    return document().selection().active.row;
}

QString EmbeddedApplication::activeAddress() const {
    return absoluteAddress(document().selection().active);
}

void EmbeddedApplication::moveCursor(int rows, int columns) {
    Document& active = document();
    const CellPosition from = active.selection().active;
    const bool tooFar = std::abs(rows) > lastRow || std::abs(columns) > lastColumn;
    const CellPosition to =
        tooFar ? CellPosition{0, 0} : CellPosition{from.row + rows, from.column + columns};
    if (!isOnSheet(to)) refuse(QStringLiteral("Kurzor nelze posunout za okraj listu."));
    active.select(to);
}

void EmbeddedApplication::clearContents(const QString& address) {
    setValue(address, {});
}

void EmbeddedApplication::findAndActivate(const FindArguments& arguments) {
    Document& active = document();
    const auto found = findCell(searched(active), arguments);
    if (!found) throw AutomationError(error::objectNotSet, QStringLiteral("Hledaná buňka nebyla nalezena."));
    const CellRange selected = active.selection().range;
    active.select(selected.contains(*found) ? selected : single(*found), *found);
}

void EmbeddedApplication::copyRange(const QString& address) {
    clipboard_ = blockOf(document(), range(address));
}

void EmbeddedApplication::paste() {
    Document& active = document();
    if (clipboard_.isEmpty()) refuse(QStringLiteral("Není co vložit: schránka je prázdná."));
    const CellRange selected = active.selection().range;
    if (clipboard_.size() == 1 && clipboard_.first().size() == 1)
        active.fill(active.activeSheet(), selected, clipboard_.first().first());
    else
        active.write(active.activeSheet(), selected.first, clipboard_);
}

CellBlock EmbeddedApplication::readBlock(const QString& address) const {
    return blockOf(document(), range(address));
}

void EmbeddedApplication::writeBlock(const QString& address, const CellBlock& block) {
    Document& active = document();
    active.write(active.activeSheet(), range(address).first, block);
}

} // namespace zvonika
