#include "spreadsheet/Refusals.h"

#include "platform/ShownText.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <cstdlib>

namespace zvonika {

namespace {

constexpr qint64 largestBlock = qint64{1} << 20; ///< cells

} // namespace

void refuse(const QString& sentence) {
    refuse(error::applicationDefined, sentence);
}

void refuse(int number, const QString& sentence) {
    throw AutomationError(number, sentence);
}

void refuseNoWorkbook() {
    refuse(error::objectNotSet, QStringLiteral("V tabulce není otevřen žádný sešit."));
}

void refuseUnknownWorkbook(const QString& name) {
    refuse(error::subscriptOutOfRange, QStringLiteral("Sešit „%1“ není otevřen.").arg(shownName(name)));
}

void refuseTwin(const QString& name) {
    refuse(QStringLiteral("Sešit „%1“ je už otevřen v okně tabulky; dva sešity téhož jména najednou otevřít "
                          "nelze. Uložte ho tam pod jiným jménem, nebo ho zavřete.")
               .arg(shownName(name)));
}

void refuseUnknownSheet(int index) {
    refuse(error::subscriptOutOfRange, QStringLiteral("List číslo %1 v sešitu není.").arg(index));
}

void refuseUnknownSheet(const QString& name) {
    refuse(error::subscriptOutOfRange, QStringLiteral("List „%1“ v sešitu není.").arg(shownName(name)));
}

void refuseNextSheet() {
    refuse(error::objectNotSet, QStringLiteral("Za posledním listem už žádný není."));
}

void refuseNothingFound() {
    refuse(error::objectNotSet, QStringLiteral("Hledaná buňka nebyla nalezena."));
}

CellRange cellsAt(const QString& address) {
    if (const auto parsed = parseAddress(address)) return *parsed;
    refuse(QStringLiteral("„%1“ není adresa buněk.").arg(shownName(address)));
}

int rowAt(int row) {
    if (row < 1 || row > lastRow) refuse(QStringLiteral("Řádek %1 na listu není.").arg(row));
    return row;
}

CellRange handedOver(const CellRange& range) {
    if (qint64{range.rows()} * range.columns() > largestBlock)
        refuse(QStringLiteral("Oblast je příliš velká."));
    return range;
}

// Compared before it is added: the sum of any two numbers may not fit.
CellPosition movedBy(CellPosition from, int rows, int columns) {
    const bool tooFar = std::abs(rows) > lastRow || std::abs(columns) > lastColumn;
    const CellPosition to =
        tooFar ? CellPosition{0, 0} : CellPosition{from.row + rows, from.column + columns};
    if (!isOnSheet(to)) refuse(QStringLiteral("Kurzor nelze posunout za okraj listu."));
    return to;
}

void requireCopied(const CellBlock& clipboard) {
    if (clipboard.isEmpty()) refuse(QStringLiteral("Není co vložit: schránka je prázdná."));
}

} // namespace zvonika
