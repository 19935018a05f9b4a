#include "spreadsheet/embedded/Replay.h"

#include "platform/RuntimeError.h"
#include "spreadsheet/embedded/SheetCells.h"

#include <stdexcept>

namespace zvonika {

namespace {

struct Change {
    SheetCells& cells;
    void operator()(const CellWritten& cell) const {
        if (cell.asInFile)
            cells.putBack(cell.sheet, cell.cell, cell.value);
        else
            cells.put(cell.sheet, cell.cell, cell.value);
    }
    void operator()(const RowInserted& row) const { cells.moveDown(row.sheet, row.row); }
    void operator()(const RowDeleted& row) const { cells.moveUp(row.sheet, row.row); }
    void operator()(const SheetRenamed& sheet) const { cells.renameSheet(sheet.sheet, sheet.name); }
    void operator()(const ColumnResized& column) const {
        cells.setColumnWidth(column.sheet, column.column, column.characters);
    }
};

bool replayed(SheetCells& cells, const JournalChange& change) {
    try {
        cells.requireSheet(std::visit([](const auto& one) { return one.sheet; }, change));
        std::visit(Change{cells}, change);
        return true;
    } catch (const RuntimeError&) {
        return false;
    } catch (const std::logic_error&) { // a sheet or place that this file does not have
        return false;
    }
}

} // namespace

int replay(SheetCells& cells, const std::vector<JournalGroup>& groups) {
    int refused = 0;
    for (const auto& group : groups)
        for (const auto& change : group.changes)
            if (!replayed(cells, change)) ++refused;
    return refused;
}

} // namespace zvonika
