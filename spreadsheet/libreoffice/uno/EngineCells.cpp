// Sheets and cells of the active workbook.
#include "spreadsheet/libreoffice/uno/Engine.h"

namespace zvonika {

int Engine::activeSheet() {
    return onBook([&](Book& book) { return book.activeSheet(); });
}

int Engine::activePlace() {
    return onBook([&](Book& book) { return book.activePlace(); });
}

QStringList Engine::sheetNames() {
    return onBook([&](Book& book) { return book.sheetNames(); });
}

void Engine::renameSheet(const QString& name) {
    onBook([&](Book& book) { book.rename(name); });
}

void Engine::selectSheet(int sheet) {
    onBook([&](Book& book) { book.selectSheet(sheet); });
}

CellPosition Engine::cursor() {
    return onBook([&](Book& book) { return book.cursor(); });
}

CellRange Engine::selection() {
    return onBook([&](Book& book) { return book.selection(); });
}

void Engine::select(const CellRange& range) {
    onBook([&](Book& book) { book.select(range); });
}

bool Engine::hasFormulas() {
    return onBook([&](Book& book) { return book.hasFormulas(); });
}

CellPosition Engine::used() {
    return onBook([&](Book& book) { return book.used(); });
}

CellBlock Engine::read(const CellRange& range) {
    return onBook([&](Book& book) { return book.read(range); });
}

QVector<QStringList> Engine::formulas(const CellRange& range) {
    return onBook([&](Book& book) { return book.formulas(range); });
}

void Engine::write(CellPosition first, const CellBlock& block) {
    onBook([&](Book& book) { book.write(first, block); });
}

void Engine::clear(const CellRange& range) {
    onBook([&](Book& book) { book.clear(range); });
}

void Engine::insertRow(int row) {
    onBook([&](Book& book) { book.moveRows(row, true); });
}

void Engine::deleteRow(int row) {
    onBook([&](Book& book) { book.moveRows(row, false); });
}

std::optional<WorkbookImage> Engine::image(int id) {
    return guarded([&]() -> std::optional<WorkbookImage> {
        if (!connected()) throw css::lang::DisposedException();
        dropClosed();
        Book* book = find(id);
        if (!book) return std::nullopt;
        return book->image();
    });
}

bool Engine::holdSheet() {
    return onBook([](Book& book) { return book.holdSheet(); });
}

void Engine::writeHeld(const QVector<PlacedBlock>& blocks) {
    onBook([&](Book& book) { book.writeHeld(blocks); });
}

bool Engine::typing() {
    return onBook([](Book& book) { return book.typing(); });
}

} // namespace zvonika
