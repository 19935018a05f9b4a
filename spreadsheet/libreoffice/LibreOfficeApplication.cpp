#include "spreadsheet/libreoffice/LibreOfficeApplication.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/libreoffice/CalcFolder.h"
#include "spreadsheet/libreoffice/CalcSession.h"
#include "spreadsheet/libreoffice/Clipboard.h"
#include "spreadsheet/libreoffice/RaisedDialogs.h"
#include "spreadsheet/libreoffice/Sheets.h"
#include "spreadsheet/libreoffice/UnsavedWorkbooks.h"

namespace zvonika {

struct LibreOfficeApplication::Parts {
    explicit Parts(const LibreOfficeSurroundings& surroundings)
        : dialogs(surroundings.dialogs), places(surroundings.drive, surroundings.settings),
          session(surroundings, places.folder()) {}

    Dialogs& dialogs;
    WorkbookPlaces places;
    CalcSession session;
    RaisedDialogs raisedDialogs;
    CalcCalls& calls = session.calls();
    ReadAhead seen;
    CalcFolder folder{calls, places};
    PacedCursor cursor{calls, seen};
    Workbooks workbooks{calls, seen, dialogs, places, session.files()};
    Sheets sheets{calls};
    Cells cells{calls, cursor, seen};
    Clipboard clipboard{workbooks, cells};
};

LibreOfficeApplication::LibreOfficeApplication(const LibreOfficeSurroundings& surroundings)
    : parts_(std::make_unique<Parts>(surroundings)) {}

LibreOfficeApplication::~LibreOfficeApplication() = default;

// --- the application ---

QString LibreOfficeApplication::defaultFilePath() const {
    return parts_->folder.path();
}

void LibreOfficeApplication::setDefaultFilePath(const QString& path) {
    parts_->folder.setPath(path);
}

void LibreOfficeApplication::setVisible(bool visible) {
    parts_->calls.ask([visible](CalcEngine& calc) { calc.setVisible(visible); });
}

void LibreOfficeApplication::showToUser() {
    if (activeWorkbookName().isEmpty()) return;
    parts_->calls.ask([](CalcEngine& calc) { calc.toFront(); });
}

void LibreOfficeApplication::setListener(SpreadsheetListener* listener) {
    parts_->session.notices().setListener(listener);
}

void LibreOfficeApplication::quit() {
    CalcSession& session = parts_->session;
    if (session.ended()) return;
    if (!parts_->calls.alive()) {
        session.end();
        parts_->calls.requireRunning();
    }
    parts_->folder.keep();
    UnsavedWorkbooks(parts_->calls, parts_->workbooks, parts_->dialogs, parts_->places,
                     [&session](int workbook) { session.notices().settle(workbook); })
        .offer();
    session.end();
}

// --- workbooks ---

void LibreOfficeApplication::addWorkbook() {
    parts_->workbooks.add();
}

void LibreOfficeApplication::openWorkbook(const QString& fullName) {
    parts_->workbooks.open(fullName);
}

std::optional<QString> LibreOfficeApplication::getOpenFilename(const QString& filter, const QString& title) {
    parts_->calls.requireRunning();
    return parts_->dialogs.openFile(title, filter, parts_->places.folder());
}

void LibreOfficeApplication::saveActiveWorkbookAs(const SaveAsArguments& arguments) {
    parts_->workbooks.saveActiveAs(arguments);
}

void LibreOfficeApplication::saveActiveWorkbook() {
    parts_->workbooks.saveActive();
}

void LibreOfficeApplication::closeActiveWorkbook() {
    parts_->workbooks.closeActive();
}

bool LibreOfficeApplication::activeWorkbookModified() const {
    return parts_->workbooks.active().modified;
}

QString LibreOfficeApplication::activeWorkbookName() const {
    return parts_->workbooks.activeName();
}

void LibreOfficeApplication::activateWindow(const QString& name) {
    parts_->workbooks.activate(name);
}

// --- sheets ---

QString LibreOfficeApplication::activeSheetName() const {
    return parts_->sheets.activeName();
}

void LibreOfficeApplication::renameActiveSheet(const QString& name) {
    parts_->workbooks.active();
    parts_->sheets.renameActive(name);
}

int LibreOfficeApplication::activeSheetIndex() const {
    return parts_->sheets.activeIndex();
}

int LibreOfficeApplication::sheetCount() const {
    return parts_->sheets.count();
}

void LibreOfficeApplication::selectSheet(int index) {
    parts_->sheets.select(index);
}

void LibreOfficeApplication::selectSheet(const QString& name) {
    parts_->sheets.select(name);
}

void LibreOfficeApplication::selectNextSheet() {
    parts_->sheets.selectNext();
}

// --- cells ---

void LibreOfficeApplication::selectRange(const QString& address) {
    parts_->cursor.select(cellsAt(address));
}

CellValue LibreOfficeApplication::value(const QString& address) const {
    return parts_->cells.value(address);
}

void LibreOfficeApplication::setValue(const QString& address, const CellValue& value) {
    parts_->cells.setValue(address, value);
}

CellValue LibreOfficeApplication::activeCellValue() const {
    return parts_->cells.activeValue();
}

void LibreOfficeApplication::setActiveCellValue(const CellValue& value) {
    parts_->cells.setActiveValue(value);
}

int LibreOfficeApplication::activeRow() const {
    return parts_->cursor.position().row;
}

QString LibreOfficeApplication::activeAddress() const {
    return absoluteAddress(parts_->cursor.position());
}

void LibreOfficeApplication::moveCursor(int rows, int columns) {
    parts_->cells.moveCursor(rows, columns);
}

void LibreOfficeApplication::clearContents(const QString& address) {
    parts_->cells.clear(address);
}

void LibreOfficeApplication::findAndActivate(const FindArguments& arguments) {
    parts_->cells.findAndActivate(arguments);
}

void LibreOfficeApplication::copyRange(const QString& address) {
    parts_->clipboard.copy(address);
}

void LibreOfficeApplication::paste() {
    parts_->clipboard.paste();
}

// --- blocks ---

CellBlock LibreOfficeApplication::readBlock(const QString& address) const {
    return parts_->cells.read(address);
}

void LibreOfficeApplication::writeBlock(const QString& address, const CellBlock& block) {
    parts_->cells.write(address, block);
}

// --- rows ---

void LibreOfficeApplication::insertRow(int row) {
    parts_->cells.insertRow(row);
}

void LibreOfficeApplication::deleteRow(int row) {
    parts_->cells.deleteRow(row);
}

// --- for a record of the workbooks ---

LiveSpreadsheet::Place LibreOfficeApplication::place() const {
    return parts_->calls.askAside([](CalcEngine& calc) {
        const int workbook = calc.active().id;
        return Place{workbook, workbook == 0 ? 1 : calc.activePlace()};
    });
}

bool LibreOfficeApplication::alive() const {
    return parts_->calls.alive();
}

unsigned LibreOfficeApplication::acts() const {
    return parts_->calls.acts();
}

std::optional<WorkbookImage> LibreOfficeApplication::image(int workbook) {
    return parts_->calls.ask(parts_->calls.patience().file,
                             [workbook](CalcEngine& calc) { return calc.image(workbook); });
}

void LibreOfficeApplication::setWatcher(WorkbookWatcher* watcher) {
    parts_->session.notices().setWatcher(watcher);
}

// --- writing and the user ---

void LibreOfficeApplication::finishWriting() {
    parts_->cells.finishWriting();
}

bool LibreOfficeApplication::userIsTyping() const {
    return parts_->calls.askAside([](CalcEngine& calc) { return calc.typing(); });
}

} // namespace zvonika
