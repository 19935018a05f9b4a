// Sheets and cells.
#include "spreadsheet/CellSearch.h"
#include "spreadsheet/libreoffice/LibreOfficeApplication.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace zvonika {

namespace {

constexpr int frame = 40;                        ///< ms between two pictures of a moving cursor
constexpr qint64 largestBlock = qint64{1} << 20; ///< cells handed over in one call
constexpr qsizetype longestText = 32767;         ///< of a cell in the format .xls
constexpr qsizetype longestSheetName = 31;

[[noreturn]] void refuse(const QString& sentence) {
    throw AutomationError(error::applicationDefined, sentence);
}

CellRange range(const QString& address) {
    if (const auto parsed = parseAddress(address)) return *parsed;
    refuse(QStringLiteral("„%1“ není adresa buněk.").arg(address));
}

CellRange block(const CellRange& range) {
    if (qint64{range.rows()} * range.columns() > largestBlock)
        refuse(QStringLiteral("Oblast je příliš velká."));
    return range;
}

void refuseLongText(const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (text && text->size() > longestText) refuse(QStringLiteral("Text je pro jednu buňku příliš dlouhý."));
}

bool isSheetName(const QString& name) {
    static const QString forbidden = QStringLiteral(":\\/?*[]");
    return !name.isEmpty() && name.size() <= longestSheetName &&
           std::none_of(name.begin(), name.end(), [](QChar c) { return forbidden.contains(c); });
}

CellBlock filled(const CellRange& range, const CellValue& value) {
    return CellBlock(range.rows(), QVector<CellValue>(range.columns(), value));
}

CellPosition moved(CellPosition from, int rows, int columns) {
    const bool tooFar = std::abs(rows) > lastRow || std::abs(columns) > lastColumn;
    const CellPosition to =
        tooFar ? CellPosition{0, 0} : CellPosition{from.row + rows, from.column + columns};
    if (!isOnSheet(to)) refuse(QStringLiteral("Kurzor nelze posunout za okraj listu."));
    return to;
}

/// The sheet as a search needs it, read in a few calls.
SearchedSheet searched(CalcEngine& calc) {
    SearchedSheet sheet{calc.selection(), calc.cursor(), calc.used(), {}, {}, {}};
    const CellRange part = block(searchedPart(sheet));
    const auto values = std::make_shared<CellBlock>(calc.read(part));
    const auto formulas = std::make_shared<QVector<QStringList>>(calc.formulas(part));
    const auto value = [values, part](CellPosition cell) {
        return values->at(cell.row - part.first.row).at(cell.column - part.first.column);
    };
    sheet.value = value;
    sheet.shown = [value](CellPosition cell) { return cellText(value(cell)); };
    sheet.isFormula = [formulas, part](CellPosition cell) {
        return !formulas->at(cell.row - part.first.row).at(cell.column - part.first.column).isEmpty();
    };
    return sheet;
}

} // namespace

QString LibreOfficeApplication::activeSheetName() const {
    return ask([](CalcEngine& calc) { return calc.sheetNames().at(calc.activeSheet() - 1); });
}

void LibreOfficeApplication::renameActiveSheet(const QString& name) {
    requireRunning();
    active();
    if (!isSheetName(name))
        refuse(QStringLiteral(
                   "Jméno listu „%1“ nelze použít: má mít 1 až 31 znaků, žádný z nich : \\ / ? * [ ], "
                   "a v sešitu smí být jen jednou.")
                   .arg(name));
    ask([name](CalcEngine& calc) { calc.renameSheet(name); });
}

int LibreOfficeApplication::activeSheetIndex() const {
    return ask([](CalcEngine& calc) { return calc.activeSheet(); });
}

int LibreOfficeApplication::sheetCount() const {
    return static_cast<int>(ask([](CalcEngine& calc) { return calc.sheetNames(); }).size());
}

void LibreOfficeApplication::selectSheet(int index) {
    const bool selected = ask([index](CalcEngine& calc) {
        if (index < 1 || index > calc.sheetNames().size()) return false;
        if (index != calc.activeSheet()) calc.selectSheet(index);
        return true;
    });
    if (!selected)
        throw AutomationError(error::subscriptOutOfRange,
                              QStringLiteral("List číslo %1 v sešitu není.").arg(index));
}

void LibreOfficeApplication::selectSheet(const QString& name) {
    const QStringList names = ask([](CalcEngine& calc) { return calc.sheetNames(); });
    for (qsizetype i = 0; i < names.size(); ++i)
        if (names[i].compare(name, Qt::CaseInsensitive) == 0) return selectSheet(static_cast<int>(i) + 1);
    throw AutomationError(error::subscriptOutOfRange, QStringLiteral("List „%1“ v sešitu není.").arg(name));
}

void LibreOfficeApplication::selectNextSheet() {
    const int next = activeSheetIndex() + 1;
    if (next > sheetCount())
        throw AutomationError(error::objectNotSet, QStringLiteral("Za posledním listem už žádný není."));
    selectSheet(next);
}

void LibreOfficeApplication::selectRange(const QString& address) {
    select(range(address));
}

// Each movement of the cursor may scroll the window, which would take most of the time of a run over a song.
void LibreOfficeApplication::select(const CellRange& range) {
    requireRunning();
    const unsigned acts = notices_->acts();
    const bool soon = sinceShown_.isValid() && !sinceShown_.hasExpired(frame) && acts == shownAfter_;
    owed_ = Owed{range, acts};
    if (soon) {
        if (!untilShown_.isActive()) untilShown_.start(frame);
        return;
    }
    showCursor();
    shownAfter_ = acts;
    sinceShown_.start();
}

void LibreOfficeApplication::showCursor() const {
    const auto due = std::exchange(owed_, std::nullopt);
    if (!due || due->acts != notices_->acts()) return;
    seen_.forgetCursor();
    askAside([range = due->range](CalcEngine& calc) { calc.select(range); });
}

CellPosition LibreOfficeApplication::cursor() const {
    requireRunning();
    const unsigned acts = notices_->acts();
    if (owed_ && owed_->acts == acts) return owed_->range.first;
    if (const auto seen = seen_.cursor(acts)) return *seen;
    const CellPosition found = askAside([](CalcEngine& calc) { return calc.cursor(); });
    seen_.learnCursor(found, acts);
    return found;
}

void LibreOfficeApplication::noteWrite(CellPosition position, const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    const auto isControl = [](QChar c) { return c.unicode() < 0x20; };
    if (text && !text->isEmpty() && std::none_of(text->begin(), text->end(), isControl))
        seen_.write(position, *text, notices_->acts());
    else
        seen_.forgetCells();
}

CellValue LibreOfficeApplication::cell(CellPosition position) const {
    requireRunning();
    const unsigned acts = notices_->acts();
    if (const auto seen = seen_.value(position, acts)) return *seen;
    const CellRange piece = ReadAhead::pieceWith(position);
    const auto [found, plain] =
        askAside([piece](CalcEngine& calc) { return std::pair(calc.read(piece), !calc.hasFormulas()); });
    seen_.learnCells(piece, found, plain, acts);
    return found.at(position.row - piece.first.row).at(position.column - piece.first.column);
}

CellValue LibreOfficeApplication::value(const QString& address) const {
    return cell(range(address).first);
}

void LibreOfficeApplication::setValue(const QString& address, const CellValue& value) {
    refuseLongText(value);
    const CellRange target = range(address);
    if (isEmpty(value)) return clearContents(address);
    if (target.rows() == 1 && target.columns() == 1)
        noteWrite(target.first, value);
    else
        seen_.forgetCells();
    askAside([target = block(target), value](CalcEngine& calc) {
        calc.write(target.first, filled(target, value));
    });
}

CellValue LibreOfficeApplication::activeCellValue() const {
    return cell(cursor());
}

void LibreOfficeApplication::setActiveCellValue(const CellValue& value) {
    refuseLongText(value);
    const CellPosition target = cursor();
    noteWrite(target, value);
    askAside([target, value](CalcEngine& calc) { calc.write(target, {{value}}); });
}

int LibreOfficeApplication::activeRow() const {
    return cursor().row;
}

QString LibreOfficeApplication::activeAddress() const {
    return absoluteAddress(cursor());
}

void LibreOfficeApplication::moveCursor(int rows, int columns) {
    select(single(moved(cursor(), rows, columns)));
}

void LibreOfficeApplication::clearContents(const QString& address) {
    ask([target = range(address)](CalcEngine& calc) { calc.clear(target); });
}

void LibreOfficeApplication::findAndActivate(const FindArguments& arguments) {
    const bool found = ask([arguments](CalcEngine& calc) {
        const auto cell = findCell(searched(calc), arguments);
        if (cell) calc.select(single(*cell));
        return cell.has_value();
    });
    if (!found) throw AutomationError(error::objectNotSet, QStringLiteral("Hledaná buňka nebyla nalezena."));
}

void LibreOfficeApplication::copyRange(const QString& address) {
    clipboard_ = readBlock(address);
}

void LibreOfficeApplication::paste() {
    active();
    if (clipboard_.isEmpty()) refuse(QStringLiteral("Není co vložit: schránka je prázdná."));
    ask([copied = clipboard_](CalcEngine& calc) {
        const CellRange selected = calc.selection();
        const bool one = copied.size() == 1 && copied.first().size() == 1;
        calc.write(selected.first, one ? filled(block(selected), copied.first().first()) : copied);
    });
}

CellBlock LibreOfficeApplication::readBlock(const QString& address) const {
    return askAside([source = block(range(address))](CalcEngine& calc) { return calc.read(source); });
}

void LibreOfficeApplication::writeBlock(const QString& address, const CellBlock& written) {
    const CellPosition first = range(address).first;
    if (written.isEmpty() || written.first().isEmpty()) return;
    const CellPosition last{first.row + static_cast<int>(written.size()) - 1,
                            first.column + static_cast<int>(written.first().size()) - 1};
    if (!isOnSheet(last)) refuse(QStringLiteral("Oblast přesahuje okraj listu."));
    for (const auto& row : written)
        for (const CellValue& value : row)
            refuseLongText(value);
    ask([first, written](CalcEngine& calc) { calc.write(first, written); });
}

} // namespace zvonika
