#include "platform/RuntimeError.h"
#include "spreadsheet/embedded/Document.h"

#include <algorithm>
#include <stdexcept>

namespace zvonika {

namespace {

constexpr int gripColumn = 2; ///< B, where the cursor of a song stands

} // namespace

int Document::recover(PendingJournal pending) {
    const std::vector<JournalGroup> groups = pending.contents.groups;
    const int refused = replay(groups);
    journal_.takeOver(std::move(pending));
    recovered_ = true;
    givenUp_ = false;
    setModified(true);
    showLast(groups);
    return refused;
}

int Document::replay(const std::vector<JournalGroup>& groups) {
    int refused = 0;
    for (const auto& group : groups)
        for (const auto& change : group.changes)
            if (!replayed(change)) ++refused;
    return refused;
}

bool Document::replayed(const JournalChange& change) {
    try {
        replayChange(change);
        return true;
    } catch (const RuntimeError&) {
        return false;
    } catch (const std::logic_error&) { // a sheet, place or name that this file does not allow
        return false;
    }
}

void Document::replayChange(const JournalChange& change) {
    struct Replay {
        Document& document;
        void operator()(const CellWritten& cell) const {
            document.requireSheet(cell.sheet);
            if (cell.asInFile)
                document.putBack(cell.sheet, {cell.cell, cell.value, {}, true});
            else
                document.put(cell.sheet, cell.cell, cell.value);
        }
        void operator()(const RowInserted& row) const {
            document.requireSheet(row.sheet);
            document.shiftDown(row.sheet, row.row);
        }
        void operator()(const RowDeleted& row) const {
            document.requireSheet(row.sheet);
            document.shiftUp(row.sheet, row.row);
        }
        void operator()(const SheetRenamed& sheet) const {
            document.requireSheet(sheet.sheet);
            document.book_.renameSheet(sheet.sheet - 1, sheet.name.toStdU16String());
        }
        void operator()(const ColumnResized& column) const {
            document.requireSheet(column.sheet);
            document.putColumnWidth(column.sheet, column.column, column.characters);
        }
    };
    std::visit(Replay{*this}, change);
}

void Document::showLast(const std::vector<JournalGroup>& groups) {
    const auto lastCell = [](const JournalGroup& group) -> const CellWritten* {
        const auto found = std::find_if(group.changes.rbegin(), group.changes.rend(), [](const auto& change) {
            return std::holds_alternative<CellWritten>(change);
        });
        return found == group.changes.rend() ? nullptr : &std::get<CellWritten>(*found);
    };
    for (auto group = groups.rbegin(); group != groups.rend(); ++group)
        if (const CellWritten* cell = lastCell(*group)) {
            if (cell->sheet > sheetCount()) return;
            activateSheet(cell->sheet);
            select({cell->cell.row, gripColumn});
            return;
        }
}

} // namespace zvonika
