#include "spreadsheet/CellSearch.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"

namespace zvonika {

namespace {

CellBlock blockOf(const Document& document, const CellRange& range) {
    return document.cells().block(document.cursor().activeSheet(), handedOver(range));
}

/// The active sheet of `document`, which outlives the result.
SearchedSheet searched(const Document& document) {
    const int sheet = document.cursor().activeSheet();
    const auto [range, active] = document.cursor().selection();
    return {range,
            active,
            {document.cells().usedRows(sheet), document.cells().usedColumns(sheet)},
            [&document, sheet](CellPosition cell) { return document.cells().value(sheet, cell); },
            [&document, sheet](CellPosition cell) { return document.cells().displayText(sheet, cell); },
            [&document, sheet](CellPosition cell) { return document.cells().isFormula(sheet, cell); }};
}

} // namespace

QString EmbeddedApplication::activeSheetName() const {
    const Document& active = document();
    return active.cells().sheetName(active.cursor().activeSheet());
}

void EmbeddedApplication::renameActiveSheet(const QString& name) {
    Document& active = document();
    active.editing().renameSheet(active.cursor().activeSheet(), name);
}

int EmbeddedApplication::activeSheetIndex() const {
    return document().cursor().activeSheet();
}

int EmbeddedApplication::sheetCount() const {
    return document().cells().sheetCount();
}

void EmbeddedApplication::selectSheet(int index) {
    Document& active = document();
    if (index < 1 || index > active.cells().sheetCount()) refuseUnknownSheet(index);
    if (index == active.cursor().activeSheet()) return;
    const Session::ProgramCall call(session_);
    active.cursor().activateSheet(index);
}

void EmbeddedApplication::selectSheet(const QString& name) {
    Document& active = document();
    for (int sheet = 1; sheet <= active.cells().sheetCount(); ++sheet)
        if (active.cells().sheetName(sheet).compare(name, Qt::CaseInsensitive) == 0)
            return selectSheet(sheet);
    refuseUnknownSheet(name);
}

void EmbeddedApplication::selectNextSheet() {
    Document& active = document();
    if (active.cursor().activeSheet() == active.cells().sheetCount()) refuseNextSheet();
    selectSheet(active.cursor().activeSheet() + 1);
}

void EmbeddedApplication::selectRange(const QString& address) {
    Document& active = document();
    const CellRange selected = cellsAt(address);
    active.cursor().select(selected, selected.first);
}

CellValue EmbeddedApplication::value(const QString& address) const {
    const Document& active = document();
    return active.cells().value(active.cursor().activeSheet(), cellsAt(address).first);
}

void EmbeddedApplication::setValue(const QString& address, const CellValue& value) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().fill(active.cursor().activeSheet(), cellsAt(address), value);
}

CellValue EmbeddedApplication::activeCellValue() const {
    const Document& active = document();
    return active.cells().value(active.cursor().activeSheet(), active.cursor().selection().active);
}

void EmbeddedApplication::setActiveCellValue(const CellValue& value) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().fill(active.cursor().activeSheet(), single(active.cursor().selection().active), value);
}

int EmbeddedApplication::activeRow() const {
    return document().cursor().selection().active.row;
}

QString EmbeddedApplication::activeAddress() const {
    return absoluteAddress(document().cursor().selection().active);
}

void EmbeddedApplication::moveCursor(int rows, int columns) {
    Document& active = document();
    active.cursor().select(movedBy(active.cursor().selection().active, rows, columns));
}

void EmbeddedApplication::clearContents(const QString& address) {
    setValue(address, {});
}

void EmbeddedApplication::findAndActivate(const FindArguments& arguments) {
    Document& active = document();
    const auto found = findCell(searched(active), arguments);
    if (!found) refuseNothingFound();
    const CellRange selected = active.cursor().selection().range;
    active.cursor().select(selected.contains(*found) ? selected : single(*found), *found);
}

void EmbeddedApplication::copyRange(const QString& address) {
    clipboard_ = blockOf(document(), cellsAt(address));
}

void EmbeddedApplication::paste() {
    const Session::ProgramCall call(session_);
    Document& active = document();
    requireCopied(clipboard_);
    const CellRange selected = active.cursor().selection().range;
    if (clipboard_.size() == 1 && clipboard_.first().size() == 1)
        active.editing().fill(active.cursor().activeSheet(), selected, clipboard_.first().first());
    else
        active.editing().write(active.cursor().activeSheet(), selected.first, clipboard_);
}

CellBlock EmbeddedApplication::readBlock(const QString& address) const {
    return blockOf(document(), cellsAt(address));
}

void EmbeddedApplication::writeBlock(const QString& address, const CellBlock& block) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().write(active.cursor().activeSheet(), cellsAt(address).first, block);
}

} // namespace zvonika
