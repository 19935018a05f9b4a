#include "spreadsheet/CellSearch.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"

namespace zvonika {

namespace {

CellBlock blockOf(const Document& document, const CellRange& range) {
    return document.block(document.activeSheet(), handedOver(range));
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
    if (index < 1 || index > active.sheetCount()) refuseUnknownSheet(index);
    if (index == active.activeSheet()) return;
    const Session::ProgramCall call(session_);
    active.activateSheet(index);
}

void EmbeddedApplication::selectSheet(const QString& name) {
    Document& active = document();
    for (int sheet = 1; sheet <= active.sheetCount(); ++sheet)
        if (active.sheetName(sheet).compare(name, Qt::CaseInsensitive) == 0) return selectSheet(sheet);
    refuseUnknownSheet(name);
}

void EmbeddedApplication::selectNextSheet() {
    Document& active = document();
    if (active.activeSheet() == active.sheetCount()) refuseNextSheet();
    selectSheet(active.activeSheet() + 1);
}

void EmbeddedApplication::selectRange(const QString& address) {
    Document& active = document();
    const CellRange selected = cellsAt(address);
    active.select(selected, selected.first);
}

CellValue EmbeddedApplication::value(const QString& address) const {
    const Document& active = document();
    return active.value(active.activeSheet(), cellsAt(address).first);
}

void EmbeddedApplication::setValue(const QString& address, const CellValue& value) {
    Document& active = document();
    active.fill(active.activeSheet(), cellsAt(address), value);
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
    active.select(movedBy(active.selection().active, rows, columns));
}

void EmbeddedApplication::clearContents(const QString& address) {
    setValue(address, {});
}

void EmbeddedApplication::findAndActivate(const FindArguments& arguments) {
    Document& active = document();
    const auto found = findCell(searched(active), arguments);
    if (!found) refuseNothingFound();
    const CellRange selected = active.selection().range;
    active.select(selected.contains(*found) ? selected : single(*found), *found);
}

void EmbeddedApplication::copyRange(const QString& address) {
    clipboard_ = blockOf(document(), cellsAt(address));
}

void EmbeddedApplication::paste() {
    Document& active = document();
    requireCopied(clipboard_);
    const CellRange selected = active.selection().range;
    if (clipboard_.size() == 1 && clipboard_.first().size() == 1)
        active.fill(active.activeSheet(), selected, clipboard_.first().first());
    else
        active.write(active.activeSheet(), selected.first, clipboard_);
}

CellBlock EmbeddedApplication::readBlock(const QString& address) const {
    return blockOf(document(), cellsAt(address));
}

void EmbeddedApplication::writeBlock(const QString& address, const CellBlock& block) {
    Document& active = document();
    active.write(active.activeSheet(), cellsAt(address).first, block);
}

} // namespace zvonika
