#include "spreadsheet/libreoffice/uno/Values.h"

#include "spreadsheet/libreoffice/ShownValues.h"
#include "spreadsheet/libreoffice/uno/Failures.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/lang/Locale.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>

namespace zvonika {

namespace {

const rtl::OUString numberFormat("NumberFormat");

/// As a block write takes it; what needs more than this is left empty and finished cell by cell.
struct Data {
    css::uno::Any operator()(std::monostate) const { return css::uno::Any(rtl::OUString()); }
    css::uno::Any operator()(double number) const { return css::uno::Any(number); }
    css::uno::Any operator()(bool truth) const { return css::uno::Any(truth ? 1.0 : 0.0); }
    css::uno::Any operator()(const CellError&) const { return css::uno::Any(rtl::OUString()); }
    css::uno::Any operator()(const QString& text) const { return css::uno::Any(toUno(text)); }
};

using Row = css::uno::Sequence<css::uno::Any>;

css::uno::Sequence<Row> dataOf(const CellBlock& block) {
    css::uno::Sequence<Row> data(static_cast<sal_Int32>(block.size()));
    Row* row = data.getArray();
    for (const auto& values : block) {
        Row filled(static_cast<sal_Int32>(values.size()));
        css::uno::Any* cell = filled.getArray();
        for (const CellValue& value : values)
            *cell++ = std::visit(Data(), value);
        *row++ = filled;
    }
    return data;
}

QString shownIn(const Ref<css::table::XCell>& cell) {
    return fromUno(as<css::text::XTextRange>(cell)->getString());
}

bool isLogical(const Ref<css::table::XCell>& cell) {
    return showsTruth(shownIn(cell), fromUno(cell->getFormula()));
}

} // namespace

Ref<css::table::XCellRange> cellsOf(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range,
                                    Keeper& keeper) {
    return keeper.keep(sheet->getCellRangeByPosition(range.first.column - 1, range.first.row - 1,
                                                     range.last.column - 1, range.last.row - 1));
}

Ref<css::table::XCell> Values::cellAt(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell) {
    return keeper_.keep(sheet->getCellByPosition(cell.column - 1, cell.row - 1));
}

CellBlock Values::read(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range) {
    const auto data = as<css::sheet::XCellRangeData>(cellsOf(sheet, range, keeper_))->getDataArray();
    CellBlock block;
    block.reserve(data.getLength());
    CellPosition first = range.first;
    for (const Row& row : data) {
        block.push_back(readRow(sheet, first, row));
        ++first.row;
    }
    return block;
}

QVector<CellValue> Values::readRow(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition first,
                                   const Row& row) {
    QVector<CellValue> values;
    values.reserve(row.getLength());
    for (const css::uno::Any& found : row) {
        values.push_back(read(sheet, first, found));
        ++first.column;
    }
    return values;
}

CellValue Values::read(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell,
                       const css::uno::Any& data) {
    double number = 0;
    rtl::OUString text;
    if (data >>= text) return text.isEmpty() ? CellValue() : CellValue(fromUno(text));
    if (!(data >>= number)) // nothing at all stands for an error
        return CellError{errorShown(shownIn(cellAt(sheet, cell)))};
    if (isZeroOrOne(number) && isLogical(cellAt(sheet, cell))) return number == 1.0;
    return number;
}

void Values::write(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition first, const CellBlock& block) {
    const int rows = static_cast<int>(block.size()), columns = static_cast<int>(block.first().size());
    if (const auto* text = std::get_if<QString>(&block.first().first()); text && rows * columns == 1) {
        const UsersSteps::Aside aside(steps_);
        // Calc takes one text for a cell faster than a block of one.
        as<css::text::XTextRange>(cellAt(sheet, first))->setString(toUno(*text));
        return;
    }
    writeData(sheet, {first, {first.row + rows - 1, first.column + columns - 1}}, block);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            finish(sheet, {first.row + row, first.column + column}, block[row][column]);
}

void Values::writeData(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range,
                       const CellBlock& block) {
    const auto cells = as<css::sheet::XCellRangeData>(cellsOf(sheet, range, keeper_));
    const UsersSteps::Aside aside(steps_);
    cells->setDataArray(dataOf(block));
}

// The number format decides between numbers and truth values, and a cell may have one from an earlier value.
void Values::finish(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell, const CellValue& value) {
    if (const auto* error = std::get_if<CellError>(&value)) {
        const auto target = cellAt(sheet, cell);
        const UsersSteps::Aside aside(steps_);
        target->setFormula(toUno(QLatin1Char('=') + errorShown(error->text)));
        return;
    }
    const auto* number = std::get_if<double>(&value);
    const bool truth = std::holds_alternative<bool>(value);
    if (!truth && !(number && isZeroOrOne(*number))) return;
    const auto target = cellAt(sheet, cell);
    if (isLogical(target) == truth) return;
    const sal_Int16 type = truth ? css::util::NumberFormat::LOGICAL : css::util::NumberFormat::NUMBER;
    const sal_Int32 format =
        as<css::util::XNumberFormatTypes>(formats_)->getStandardFormat(type, css::lang::Locale());
    const auto properties = as<css::beans::XPropertySet>(target);
    const UsersSteps::Aside aside(steps_);
    properties->setPropertyValue(numberFormat, css::uno::Any(format));
}

} // namespace zvonika
