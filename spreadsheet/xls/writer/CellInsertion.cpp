#include "spreadsheet/xls/writer/CellInsertion.h"

#include "spreadsheet/xls/book/SheetSettings.h"

#include <algorithm>
#include <limits>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t noLimit = std::numeric_limits<std::uint32_t>::max();
constexpr int rowsPerBlock = 32;
constexpr std::uint16_t rowHasFormat = 0x0080;
constexpr std::uint16_t formatMask = 0x0FFF;

} // namespace

CellInsertion::CellInsertion(SheetPatch& patch) : patch_(patch), layout_(patch.layout) {
    const bool emptySheet = layout_.rows.empty() && layout_.cells.empty();
    usesRows_ = !layout_.rows.empty() || emptySheet;
    usesBlocks_ = !layout_.blocks.empty() || (emptySheet && layout_.index != absent);
    for (const RowBlock& block : layout_.blocks)
        blocksByRow_.push_back(&block);
    std::ranges::stable_sort(blocksByRow_, {}, &RowBlock::firstRow);
    if (!blocksByRow_.empty()) baseRow_ = blocksByRow_.front()->firstRow;
}

void CellInsertion::insert(std::span<const CellChange> cells) {
    while (!cells.empty()) {
        const std::uint32_t row = rowOf(cells.front().key);
        const auto behind =
            std::ranges::find_if(cells, [&](const auto& cell) { return rowOf(cell.key) != row; });
        const auto count = static_cast<std::size_t>(behind - cells.begin());
        insertRow(cells.first(count));
        cells = cells.subspan(count);
    }
    insertNewBlocks();
}

void CellInsertion::insertRow(RowCells cells) {
    const std::uint32_t row = rowOf(cells.front().key);
    if (!usesRows_ || layout_.findRow(row) || hasCells(row)) return insertIntoKnownRow(cells);
    if (!usesBlocks_) return insertNewRow(cells);
    if (const RowBlock* block = blockForRow(row)) return insertNewRowIntoBlock(cells, *block);
    newBlocks_[blockNumber(row)].push_back(cells);
}

void CellInsertion::insertIntoKnownRow(RowCells cells) {
    const RowSlot* row = layout_.findRow(rowOf(cells.front().key));
    if (!row) return insertCells(cells, absent, noLimit);
    const RowBlock* block = layout_.blockAt(row->record);
    patch_.touch(row->record);
    extendRow(*row, cells);
    insertCells(cells, endOfRowRun(row->record), block ? block->dbCell : noLimit);
}

void CellInsertion::insertNewRow(RowCells cells) {
    const std::uint32_t row = rowOf(cells.front().key);
    const auto next = std::ranges::lower_bound(layout_.rows, row, {}, &RowSlot::row);
    std::uint32_t position = layout_.tablePosition();
    std::uint32_t floor = position;
    InsertOrder order = InsertOrder::Row;
    if (next != layout_.rows.begin()) {
        position = recordAt(patch_.stream, std::prev(next)->record).end();
        floor = endOfRowRun(std::prev(next)->record);
        // A sheet whose rows each stand before their own cells goes on that way.
        if (standsAlone(*std::prev(next))) {
            position = floor = cellPosition(cells.front().key, floor, noLimit);
            order = InsertOrder::Cell;
        }
    } else if (next != layout_.rows.end()) {
        position = next->record;
        floor = endOfRowRun(next->record);
    }
    patch_.patches.insert(position, rowRecord(cells), order);
    insertCells(cells, floor, noLimit);
}

void CellInsertion::insertNewRowIntoBlock(RowCells cells, const RowBlock& block) {
    const auto inBlock = [&](const RowSlot& slot) {
        return slot.record >= block.start && slot.record < block.dbCell;
    };
    const auto next = std::ranges::lower_bound(layout_.rows, rowOf(cells.front().key), {}, &RowSlot::row);
    std::uint32_t position = block.start;
    std::uint32_t floor = block.start;
    if (next != layout_.rows.begin() && inBlock(*std::prev(next))) {
        position = recordAt(patch_.stream, std::prev(next)->record).end();
        floor = endOfRowRun(std::prev(next)->record);
    } else if (next != layout_.rows.end() && inBlock(*next)) {
        position = next->record;
        floor = endOfRowRun(next->record);
    }
    patch_.touch(block.start);
    patch_.patches.insert(position, rowRecord(cells), InsertOrder::Row);
    insertCells(cells, floor, block.dbCell);
}

void CellInsertion::insertCells(RowCells cells, std::uint32_t floor, std::uint32_t limit) {
    for (const CellChange& cell : cells) {
        const std::uint32_t position = cellPosition(cell.key, floor, limit);
        patch_.touch(position, rowOf(cell.key));
        patch_.patches.insert(position, cellRecord(cell).view(), InsertOrder::Cell);
    }
}

std::uint32_t CellInsertion::cellPosition(CellKey key, std::uint32_t floor, std::uint32_t limit) const {
    const auto& cells = layout_.cells;
    const auto next = std::ranges::lower_bound(cells, key, {}, &CellSlot::key);
    const bool hasPrevious = next != cells.begin();
    if (hasPrevious && rowOf(std::prev(next)->key) == rowOf(key))
        return endOfCell(patch_.stream, std::prev(next)->record);
    if (next != cells.end() && rowOf(next->key) == rowOf(key)) return next->record;
    std::uint32_t position = floor;
    if (hasPrevious && std::prev(next)->record < limit)
        position = std::max(position, endOfCell(patch_.stream, std::prev(next)->record));
    if (next == cells.end()) return position != absent ? position : layout_.tablePosition();
    if (position == absent) return next->record;
    // Row records out of order must not take the cells out of theirs.
    const bool isOrdered = !hasPrevious || std::prev(next)->record < next->record;
    return isOrdered && isWithin(limit, next->record) ? std::min(position, next->record) : position;
}

bool CellInsertion::isWithin(std::uint32_t limit, std::uint32_t offset) const {
    if (limit == noLimit) return true;
    const RowBlock* block = layout_.blockAt(offset);
    return block && block->dbCell == limit;
}

bool CellInsertion::standsAlone(const RowSlot& slot) const {
    const std::uint32_t end = recordAt(patch_.stream, slot.record).end();
    const bool first = &slot == layout_.rows.data();
    const bool followsRow = !first && recordAt(patch_.stream, (&slot)[-1].record).end() == slot.record;
    return !followsRow && !isRecordAt(patch_.stream, end, RecordType::Row);
}

std::uint32_t CellInsertion::endOfRowRun(std::uint32_t rowRecord) {
    if (rowRecord >= runBegin_ && rowRecord < runEnd_) return runEnd_;
    runBegin_ = rowRecord;
    runEnd_ = recordAt(patch_.stream, rowRecord).end();
    while (isRecordAt(patch_.stream, runEnd_, RecordType::Row))
        runEnd_ = recordAt(patch_.stream, runEnd_).end();
    return runEnd_;
}

void CellInsertion::extendRow(const RowSlot& slot, RowCells cells) {
    const Record row = recordAt(patch_.stream, slot.record);
    std::uint32_t first = columnOf(cells.front().key);
    std::uint32_t end = columnOf(cells.back().key) + 1;
    const bool wasEmpty = row.u16(2) >= row.u16(4);
    if (!wasEmpty) {
        first = std::min<std::uint32_t>(first, row.u16(2));
        end = std::max<std::uint32_t>(end, row.u16(4));
    }
    if (first == row.u16(2) && end == row.u16(4)) return;
    std::uint8_t bytes[4];
    store16(bytes, first);
    store16(bytes + 2, end);
    patch_.patches.replace(static_cast<std::uint32_t>(slot.record + recordHeaderSize + 2), 4, bytes);
}

std::vector<std::uint8_t> CellInsertion::rowRecord(RowCells cells) const {
    std::uint32_t height = 255;
    if (layout_.defaultRowHeight != absent) height = recordAt(patch_.stream, layout_.defaultRowHeight).u16(2);
    std::vector<std::uint8_t> payload;
    append16(payload, rowOf(cells.front().key));
    append16(payload, columnOf(cells.front().key));
    append16(payload, columnOf(cells.back().key) + 1);
    append16(payload, height);
    append32(payload, 0);
    append16(payload, 0x0100);
    append16(payload, patch_.formats.usual());
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::Row, payload);
    return record;
}

SmallRecord CellInsertion::cellRecord(const CellChange& cell) const {
    return encodeCell(cell.key, formatFor(cell.key), cell.content);
}

/// Programs that find the format of a style in a cell take the file for damaged, whatever row or column say.
std::uint16_t CellInsertion::formatFor(CellKey key) const {
    if (const RowSlot* slot = layout_.findRow(rowOf(key))) {
        const Record row = recordAt(patch_.stream, slot->record);
        const std::uint16_t format = row.u16(14) & formatMask;
        if (row.u16(12) & rowHasFormat && patch_.formats.isOfCells(format)) return format;
    }
    const auto format = columnFormat(patch_.stream, layout_, columnOf(key));
    return format && patch_.formats.isOfCells(*format) ? *format : patch_.formats.usual();
}

bool CellInsertion::hasCells(std::uint32_t row) const {
    const auto first = std::ranges::lower_bound(layout_.cells, cellKey(row, 0), {}, &CellSlot::key);
    return first != layout_.cells.end() && rowOf(first->key) == row;
}

int CellInsertion::blockNumber(std::uint32_t row) const {
    const int distance = static_cast<int>(row) - static_cast<int>(baseRow_);
    return distance >= 0 ? distance / rowsPerBlock : -((-distance + rowsPerBlock - 1) / rowsPerBlock);
}

const RowBlock* CellInsertion::blockForRow(std::uint32_t row) const {
    const auto next = std::ranges::upper_bound(blocksByRow_, row, {}, &RowBlock::firstRow);
    const auto belongs = [&](const RowBlock& block) {
        return row <= block.lastRow ? row >= block.firstRow || blockNumber(block.lastRow) == blockNumber(row)
                                    : blockNumber(block.firstRow) == blockNumber(row);
    };
    if (next != blocksByRow_.begin() && belongs(**std::prev(next))) return *std::prev(next);
    if (next != blocksByRow_.end() && belongs(**next)) return *next;
    return nullptr;
}

const RowBlock* CellInsertion::firstBlockBehind(std::uint32_t row) const {
    const auto next = std::ranges::upper_bound(blocksByRow_, row, {}, &RowBlock::firstRow);
    return next == blocksByRow_.end() ? nullptr : *next;
}

void CellInsertion::insertNewBlocks() {
    for (const auto& [number, rows] : newBlocks_)
        insertNewBlock(rows);
}

void CellInsertion::insertNewBlock(std::span<const RowCells> rows) {
    std::vector<std::uint8_t> bytes;
    for (const RowCells& row : rows) {
        const auto record = rowRecord(row);
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    for (const RowCells& row : rows)
        for (const CellChange& cell : row) {
            const SmallRecord record = cellRecord(cell);
            bytes.insert(bytes.end(), record.bytes.begin(), record.bytes.begin() + record.size);
        }
    const auto dbCell = unfilledDbCell(rows.size());
    bytes.insert(bytes.end(), dbCell.begin(), dbCell.end());
    std::uint32_t position = layout_.tablePosition();
    if (const RowBlock* next = firstBlockBehind(rowOf(rows.front().front().key)))
        position = next->start;
    else if (!layout_.blocks.empty())
        position = recordAt(patch_.stream, layout_.blocks.back().dbCell).end();
    patch_.patches.insert(position, bytes, InsertOrder::Block);
    ++patch_.newBlocks;
}

} // namespace zvonika::xls
