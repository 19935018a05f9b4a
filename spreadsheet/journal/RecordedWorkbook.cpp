#include "spreadsheet/journal/RecordedWorkbook.h"

#include "spreadsheet/journal/ContentHash.h"
#include "spreadsheet/journal/ImageChanges.h"

#include <algorithm>
#include <utility>

namespace zvonika {

JournalBase baseOf(const WorkbookImage& image) {
    return {image.path, image.name, image.path.isEmpty() ? QByteArray() : contentHashOfFile(image.path)};
}

RecordedWorkbook::RecordedWorkbook(WorkbookImage image, JournalFolder journals)
    : image_(std::move(image)), journal_(std::move(journals), baseOf(image_)) {}

void RecordedWorkbook::note(std::vector<JournalChange> changes) {
    if (changes.empty()) return;
    image_.modified = true;
    unsaved_ = true;
    journal_.note(std::move(changes));
}

/// A cell that stays as it is does not count.
void RecordedWorkbook::write(std::vector<JournalChange>& changes, int sheet, CellPosition cell,
                             const CellValue& value) {
    SheetImage& image = image_.sheets[sheet - 1];
    if (isSame(image.value(cell), value) && image.formula(cell).isEmpty()) return;
    image.put(cell, value);
    changes.emplace_back(CellWritten{sheet, cell, value});
}

void RecordedWorkbook::wrote(int sheet, CellPosition first, const CellBlock& block) {
    if (!image_.hasSheet(sheet)) return;
    std::vector<JournalChange> changes;
    for (int row = 0; row < block.size(); ++row)
        for (int column = 0; column < block.at(row).size(); ++column)
            write(changes, sheet, {first.row + row, first.column + column}, block.at(row).at(column));
    note(std::move(changes));
}

void RecordedWorkbook::filled(int sheet, const CellRange& range, const CellValue& value) {
    if (!image_.hasSheet(sheet)) return;
    CellPosition end = range.last;
    if (const CellPosition used = image_.sheets.at(sheet - 1).used(); isEmpty(value))
        end = {std::min(end.row, used.row), std::min(end.column, used.column)};
    std::vector<JournalChange> changes;
    for (CellPosition cell = range.first; cell.row <= end.row; ++cell.row)
        for (cell.column = range.first.column; cell.column <= end.column; ++cell.column)
            write(changes, sheet, cell, value);
    note(std::move(changes));
}

void RecordedWorkbook::movedRows(int sheet, int row, bool inserted) {
    if (!image_.hasSheet(sheet) || row > image_.sheets.at(sheet - 1).used().row) return;
    image_.sheets[sheet - 1].moveRows(row, inserted);
    note({inserted ? JournalChange(RowInserted{sheet, row}) : JournalChange(RowDeleted{sheet, row})});
}

void RecordedWorkbook::renamed(int sheet, const QString& name) {
    if (!image_.hasSheet(sheet) || image_.sheets.at(sheet - 1).name == name) return;
    image_.sheets[sheet - 1].name = name;
    note({SheetRenamed{sheet, name}});
}

void RecordedWorkbook::seen(WorkbookImage image) {
    const bool stored = unsaved_ || image_.modified || image.path != image_.path;
    if (!image.modified && stored) return saved(std::move(image));
    auto changes = differences(image_, image);
    image_ = std::move(image);
    note(std::move(changes));
}

void RecordedWorkbook::saved(WorkbookImage image) {
    if (image.path != image_.path) journal_.setAsideOf(image.path);
    image_ = std::move(image);
    unsaved_ = false;
    journal_.saved(baseOf(image_));
}

void RecordedWorkbook::restored(PendingJournal pending, WorkbookImage image) {
    image_ = std::move(image);
    unsaved_ = true;
    journal_.takeOver(std::move(pending));
}

} // namespace zvonika
