#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"
#include "spreadsheet/libreoffice/uno/UsersSteps.h"

#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>
namespace zvonika {

/// Cells of one workbook between Calc's notion and the program's. Calc has no truth values: a 0 or 1 is one
/// where its number format says so.
class Values {
public:
    Values(const Ref<css::util::XNumberFormats>& formats, Keeper& keeper, const UsersSteps& steps)
        : formats_(formats), keeper_(keeper), steps_(steps) {}

    CellBlock read(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range);
    /// Is no step of the user's. `block`: rows of equal length that lie within the sheet.
    void write(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition first, const CellBlock& block);

private:
    using Row = css::uno::Sequence<css::uno::Any>;
    QVector<CellValue> readRow(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition first,
                               const Row& row);
    CellValue read(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell, const css::uno::Any& data);
    void writeData(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range,
                   const CellBlock& block);
    void finish(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell, const CellValue& value);

    Ref<css::table::XCell> cellAt(const Ref<css::sheet::XSpreadsheet>& sheet, CellPosition cell);

    Ref<css::util::XNumberFormats> formats_;
    Keeper& keeper_;
    const UsersSteps& steps_;
};

/// The cells of a range of a sheet, as UNO has them.
Ref<css::table::XCellRange> cellsOf(const Ref<css::sheet::XSpreadsheet>& sheet, const CellRange& range,
                                    Keeper& keeper);

} // namespace zvonika
