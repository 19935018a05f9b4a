#include "spreadsheet/embedded/SheetCommands.h"

#include "spreadsheet/embedded/CellEntry.h"
#include "spreadsheet/embedded/Failures.h"
#include "spreadsheet/embedded/HandedSteps.h"
#include "spreadsheet/embedded/Session.h"
#include "spreadsheet/embedded/TabSeparatedText.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

CellBlock typedBlock(const QString& tabbedText) {
    CellBlock block;
    for (const auto& row : fromTabSeparated(tabbedText)) {
        block.append(QVector<CellValue>());
        for (const auto& text : row)
            block.last().append(typedValue(text));
    }
    return block;
}

/// Only what holds anything: a whole column selected is 65,536 cells.
CellRange copiedPart(const Document& document) {
    const CellRange range = document.cursor().selection().range;
    const int sheet = document.cursor().activeSheet();
    return spanning(range.first,
                    {std::clamp(document.cells().usedRows(sheet), range.first.row, range.last.row),
                     std::clamp(document.cells().usedColumns(sheet), range.first.column, range.last.column)});
}

QString tabbed(const CellBlock& block) {
    QVector<QStringList> rows;
    for (const auto& cells : block) {
        rows.append(QStringList());
        for (const auto& value : cells)
            rows.last().append(displayText(value));
    }
    return tabSeparated(rows);
}

int columnsOf(const CellBlock& block) {
    qsizetype columns = 1;
    for (const auto& row : block)
        columns = std::max(columns, row.size());
    return static_cast<int>(columns);
}

} // namespace

Document* SheetCommands::document() const {
    return session_.active();
}

QStringList SheetCommands::documentNames() const {
    QStringList names;
    for (const auto& document : session_.documents())
        names.append(document->file().name());
    return names;
}

/// Runs what the user asked for, shows a refusal and tells the program what came of it.
template <typename Action>
bool SheetCommands::attempt(Action action) {
    Document* document = session_.active();
    if (!document) return false;
    const Place before = place();
    bool edited = false;
    const auto touched = QObject::connect(document, &Document::cellsChanged, [&edited] { edited = true; });
    // A refusal may come half-way.
    runForUser(session_.dialogs(), [&] { edited = keepSteps(*document, action); });
    QObject::disconnect(touched);
    session_.report(edited, !(place() == before));
    return edited;
}

/// Hands over what was done where somebody else keeps the steps: before the box of a refusal, which lets the
/// program go on.
template <typename Action>
bool SheetCommands::keepSteps(Document& document, Action action) {
    StepKeeper* const keeper = session_.keeperOf(document);
    if (!keeper) return action(document);
    document.editing().forgetSteps(); // from before it was kept
    const auto handOver = [&] {
        for (const UndoStep& step : document.editing().takeSteps())
            keeper->done(workStep(step, document.cells().sheetName(step.sheet)));
    };
    try {
        const bool edited = action(document);
        handOver();
        return edited;
    } catch (...) {
        handOver();
        throw;
    }
}

SheetCommands::Place SheetCommands::place() const {
    const Document* document = session_.active();
    if (!document) return {};
    return {document, document->cursor().activeSheet(), document->cursor().selection().active};
}

void SheetCommands::showDocument(const QString& name) {
    attempt([&](Document&) {
        if (Document* other = session_.find(name)) session_.activate(*other);
        return false;
    });
}

void SheetCommands::select(const CellRange& range, CellPosition active) {
    attempt([&](Document& document) {
        document.cursor().select(range, active);
        return false;
    });
}

void SheetCommands::selectSheet(int sheet) {
    attempt([&](Document& document) {
        document.cursor().activateSheet(sheet);
        return false;
    });
}

void SheetCommands::type(CellPosition cell, const QString& text) {
    attempt([&](Document& document) {
        const int sheet = document.cursor().activeSheet();
        if (text == document.cells().editText(sheet, cell)) return false;
        return document.editing().edit(sheet, cell, {{typedValue(text)}}, QStringLiteral("Psaní"));
    });
}

void SheetCommands::clear() {
    attempt([](Document& document) {
        return document.editing().editFill(document.cursor().activeSheet(),
                                           document.cursor().selection().range, {},
                                           QStringLiteral("Vymazání"));
    });
}

QString SheetCommands::copy() {
    const Document* document = session_.active();
    if (!document) return {};
    QString text;
    runForUser(session_.dialogs(), [&] {
        CellBlock block = document->cells().block(document->cursor().activeSheet(), copiedPart(*document));
        text = tabbed(block);
        copied_ = std::move(block);
        copiedText_ = text;
    });
    return text;
}

QString SheetCommands::cut() {
    const QString text = copy();
    if (text.isEmpty()) return text; // nothing is taken out that was not copied
    attempt([](Document& document) {
        return document.editing().editFill(document.cursor().activeSheet(),
                                           document.cursor().selection().range, {},
                                           QStringLiteral("Vyjmutí"));
    });
    return text;
}

void SheetCommands::paste(const QString& tabbedText) {
    attempt([&](Document& document) {
        const CellBlock block = tabbedText == copiedText_ ? copied_ : typedBlock(tabbedText);
        if (block.isEmpty()) return false;
        const int sheet = document.cursor().activeSheet();
        const CellRange range = document.cursor().selection().range;
        const QString label = QStringLiteral("Vložení");
        const int rows = static_cast<int>(block.size()), columns = columnsOf(block);
        if (rows == 1 && columns == 1)
            return document.editing().editFill(sheet, range, block.first().value(0), label);
        const bool edited = document.editing().edit(sheet, range.first, block, label);
        document.cursor().select(sized(range.first, rows, columns), range.first);
        return edited;
    });
}

void SheetCommands::insertRow() {
    attempt([](Document& document) {
        return document.editing().insertRow(document.cursor().activeSheet(),
                                            document.cursor().selection().active.row);
    });
}

void SheetCommands::deleteRow() {
    attempt([](Document& document) {
        return document.editing().deleteRow(document.cursor().activeSheet(),
                                            document.cursor().selection().active.row);
    });
}

void SheetCommands::undo() {
    if (StepKeeper* const keeper = this->keeper())
        exchangeKept([keeper] { keeper->undo(); });
    else
        attempt([](Document& document) { return document.editing().undo(); });
}

void SheetCommands::redo() {
    if (StepKeeper* const keeper = this->keeper())
        exchangeKept([keeper] { keeper->redo(); });
    else
        attempt([](Document& document) { return document.editing().redo(); });
}

StepKeeper* SheetCommands::keeper() const {
    return session_.active() ? session_.keeperOf(*session_.active()) : nullptr;
}

// The keeper does it by calls of the program, which do not go together with one that is under way.
void SheetCommands::exchangeKept(const std::function<void()>& exchange) {
    if (!session_.inProgramCall()) runForUser(session_.dialogs(), exchange);
}

QString SheetCommands::undoLabel() const {
    if (const StepKeeper* const kept = keeper()) return kept->undoLabel();
    return session_.active() ? session_.active()->editing().undoLabel() : QString();
}

QString SheetCommands::redoLabel() const {
    if (const StepKeeper* const kept = keeper()) return kept->redoLabel();
    return session_.active() ? session_.active()->editing().redoLabel() : QString();
}

void SheetCommands::renameSheet(int sheet, const QString& name) {
    attempt([&](Document& document) {
        if (document.cells().sheetName(sheet) == name) return false;
        document.editing().renameSheet(sheet, name);
        return true;
    });
}

void SheetCommands::setColumnWidth(int column, double characters) {
    attempt([&](Document& document) {
        document.editing().setColumnWidth(document.cursor().activeSheet(), column, characters);
        return false;
    });
}

} // namespace zvonika
