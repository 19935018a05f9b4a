// Sheets and cells: what the program writes, on its way into the journal. A call comes first, and what it has
// written is recorded when it has: a spreadsheet that refuses leaves nothing in the journal.
#include "spreadsheet/Refusals.h"
#include "spreadsheet/journal/JournalledSpreadsheet.h"

namespace zvonika {

void JournalledSpreadsheet::selectSheet(int index) {
    forgetPlace();
    live_->selectSheet(index);
}

void JournalledSpreadsheet::selectSheet(const QString& name) {
    forgetPlace();
    live_->selectSheet(name);
}

void JournalledSpreadsheet::selectNextSheet() {
    forgetPlace();
    live_->selectNextSheet();
}

QString JournalledSpreadsheet::activeSheetName() const {
    if (!isPlaceKnown()) return live_->activeSheetName();
    if (sheetName_.isEmpty()) sheetName_ = live_->activeSheetName();
    return sheetName_;
}

void JournalledSpreadsheet::renameActiveSheet(const QString& name) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    endStep();
    sheetName_.clear();
    live_->renameActiveSheet(name);
    if (workbook) workbook->renamed(sheet, name);
}

void JournalledSpreadsheet::setValue(const QString& address, const CellValue& value) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    live_->setValue(address, value);
    if (workbook) workbook->filled(sheet, cellsAt(address), value);
}

void JournalledSpreadsheet::setActiveCellValue(const CellValue& value) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    const QString cell = live_->activeAddress();
    live_->setActiveCellValue(value);
    if (workbook) workbook->filled(sheet, cellsAt(cell), value);
}

void JournalledSpreadsheet::clearContents(const QString& address) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    live_->clearContents(address);
    if (workbook) workbook->filled(sheet, cellsAt(address), {});
}

void JournalledSpreadsheet::writeBlock(const QString& address, const CellBlock& block) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    live_->writeBlock(address, block);
    if (workbook) workbook->wrote(sheet, cellsAt(address).first, block);
}

void JournalledSpreadsheet::putBack(const QString& address, const CellBlock& block) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    live_->putBack(address, block);
    if (workbook) workbook->wrote(sheet, cellsAt(address).first, block);
}

void JournalledSpreadsheet::moveRows(int row, bool insert) {
    RecordedWorkbook* workbook = active();
    const int sheet = place_.sheet;
    insert ? live_->insertRow(row) : live_->deleteRow(row);
    if (workbook) workbook->movedRows(sheet, row, insert);
}

void JournalledSpreadsheet::insertRow(int row) {
    moveRows(row, true);
}

void JournalledSpreadsheet::deleteRow(int row) {
    moveRows(row, false);
}

// A workbook whose record begins within the step would have no part in it.
void JournalledSpreadsheet::beginStep() {
    try {
        active();
    } catch (const AutomationError&) { // it writes nothing then either
    }
    for (const auto& workbook : workbooks_)
        workbook->journal().beginGroup();
    live_->beginStep();
}

void JournalledSpreadsheet::endStep() {
    const bool whole = live_->alive();
    for (const auto& workbook : workbooks_)
        whole ? workbook->journal().endGroup() : workbook->journal().dropGroup();
    live_->endStep();
}

// Where it goes and how far depends on what is marked and what the clipboard holds.
void JournalledSpreadsheet::paste() {
    active();
    live_->paste();
    lookDue_ = true;
    look();
}

} // namespace zvonika
