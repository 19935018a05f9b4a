#include "spreadsheet/CellSearch.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"

#include <algorithm>

namespace zvonika {

namespace {

CellBlock blockOf(const Document& document, const CellRange& range) {
    return document.cells().block(document.cursor().activeSheet(), handedOver(range));
}

/// From 1, of a sheet that is among them.
int indexAmong(const std::vector<int>& sheets, int sheet) {
    return static_cast<int>(std::ranges::find(sheets, sheet) - sheets.begin()) + 1;
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
    endStep();
    active.editing().renameSheet(active.cursor().activeSheet(), name);
}

int EmbeddedApplication::activeSheetIndex() const {
    const Document& active = document();
    return indexAmong(active.cells().visibleSheets(), active.cursor().activeSheet());
}

int EmbeddedApplication::sheetCount() const {
    return static_cast<int>(document().cells().visibleSheets().size());
}

void EmbeddedApplication::selectSheet(int index) {
    Document& active = document();
    const std::vector<int> sheets = active.cells().visibleSheets();
    if (index < 1 || index > static_cast<int>(sheets.size())) refuseUnknownSheet(index);
    const int sheet = sheets[static_cast<std::size_t>(index - 1)];
    if (sheet == active.cursor().activeSheet()) return;
    const Session::ProgramCall call(session_);
    active.cursor().activateSheet(sheet);
}

void EmbeddedApplication::selectSheet(const QString& name) {
    const SheetCells& cells = document().cells();
    const std::vector<int> sheets = cells.visibleSheets();
    for (const int sheet : sheets)
        if (cells.sheetName(sheet).compare(name, Qt::CaseInsensitive) == 0)
            return selectSheet(indexAmong(sheets, sheet));
    refuseUnknownSheet(name);
}

void EmbeddedApplication::selectNextSheet() {
    const int next = activeSheetIndex() + 1;
    if (next > sheetCount()) refuseNextSheet();
    selectSheet(next);
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

void EmbeddedApplication::insertRow(int row) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().insertRow(active.cursor().activeSheet(), rowAt(row), Editing::By::Program);
}

void EmbeddedApplication::deleteRow(int row) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().deleteRow(active.cursor().activeSheet(), rowAt(row), Editing::By::Program);
}

void EmbeddedApplication::putBack(const QString& address, const CellBlock& block) {
    const Session::ProgramCall call(session_);
    Document& active = document();
    active.editing().putBack(active.cursor().activeSheet(), cellsAt(address).first, block);
}

void EmbeddedApplication::beginStep() {
    const Session::ProgramCall call(session_);
    for (const auto& document : session_.documents())
        document->journal().beginGroup();
}

void EmbeddedApplication::endStep() {
    for (const auto& document : session_.documents())
        document->journal().endGroup();
}

} // namespace zvonika
