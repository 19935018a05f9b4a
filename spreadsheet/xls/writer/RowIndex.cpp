#include "spreadsheet/xls/writer/RowIndex.h"

#include "spreadsheet/xls/records/RecordWalk.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::size_t indexHead = 16; ///< payload of Index before its list
constexpr std::size_t rowRecordSize = 20;
constexpr std::size_t maxIndexed = (maxRecordPayload - indexHead) / 4;
constexpr std::size_t maxRowsInDbCell = (maxRecordPayload - 4) / 2;

void addRowsWithCells(const SheetPatch& patch, std::uint32_t dbCell, std::set<std::uint32_t>& rows) {
    for (std::uint32_t at = patch.layout.blockAt(dbCell)->start; at < dbCell;) {
        const Record record = recordAt(patch.stream, at);
        if (isCellRecord(record.type())) rows.insert(cellRow(record));
        at = record.end();
    }
}

void patchDbCells(SheetPatch& patch) {
    for (auto& [dbCell, rows] : patch.changedBlocks) {
        addRowsWithCells(patch, dbCell, rows);
        const std::size_t count = std::min(rows.size(), maxRowsInDbCell);
        patch.patches.replace(dbCell, recordAt(patch.stream, dbCell).end() - dbCell, unfilledDbCell(count));
    }
}

/// Used range of a sheet as the file format has it: first, and one behind the last.
struct Range {
    std::uint32_t first;
    std::uint32_t end;
    void include(std::uint32_t index) {
        const bool empty = first >= end;
        first = empty ? index : std::min(first, index);
        end = empty ? index + 1 : std::max(end, index + 1);
    }
};

void patchIndex(SheetPatch& patch, std::span<const CellChange> fresh) {
    if (patch.layout.index == absent) return;
    const Record index = recordAt(patch.stream, patch.layout.index);
    Range rows{index.u32(4), index.u32(8)};
    rows.include(rowOf(fresh.front().key));
    rows.include(rowOf(fresh.back().key));
    std::vector<std::uint8_t> payload(index.payload.begin(), index.payload.end());
    store32(&payload[4], rows.first);
    store32(&payload[8], rows.end);
    const std::size_t blocks = patch.layout.dbCells + patch.newBlocks;
    if (patch.newBlocks > 0) payload.resize(indexHead + 4 * std::min(blocks, maxIndexed));
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::Index, payload);
    patch.patches.replace(index.offset, index.end() - index.offset, record);
}

void patchDimensions(SheetPatch& patch, std::span<const CellChange> fresh) {
    if (patch.layout.dimensions == absent) return;
    const Record record = recordAt(patch.stream, patch.layout.dimensions);
    Range rows{record.u32(0), record.u32(4)};
    Range columns{record.u16(8), record.u16(10)};
    const bool wasEmpty = rows.first >= rows.end || columns.first >= columns.end;
    if (wasEmpty) {
        rows = columns = {};
        for (const CellSlot& slot : patch.layout.cells) {
            rows.include(rowOf(slot.key));
            columns.include(columnOf(slot.key));
        }
    }
    for (const CellChange& cell : fresh) {
        rows.include(rowOf(cell.key));
        columns.include(columnOf(cell.key));
    }
    std::uint8_t bytes[12];
    store32(bytes, rows.first);
    store32(bytes + 4, rows.end);
    store16(bytes + 8, columns.first);
    store16(bytes + 10, columns.end);
    patch.patches.replace(static_cast<std::uint32_t>(record.offset + recordHeaderSize), 12, bytes);
}

/// Walks a sheet's new bytes, block by block.
class BlockIndexer {
public:
    explicit BlockIndexer(PatchedStream& out) : out_(out) {}

    std::vector<std::uint32_t> run(std::uint32_t sheet) {
        RecordWalk record(out_, sheet);
        for (int depth = 1; depth > 0;) {
            record.next();
            if (record.type() == RecordType::Bof) ++depth;
            if (record.type() == RecordType::Eof) --depth;
            if (depth == 1) take(record);
        }
        return std::move(dbCells_);
    }

private:
    struct RowCells {
        std::uint32_t row;
        std::uint32_t firstCell;
    };

    void take(const RecordWalk& record) {
        const bool isRow = record.type() == RecordType::Row;
        if (!isRow && !isCellRecord(record.type())) {
            if (record.type() == RecordType::DbCell) takeDbCell(record);
            return;
        }
        const auto offset = static_cast<std::uint32_t>(record.offset());
        const std::uint32_t row = record.first32() & 0xFFFF;
        if (blockStart_ == absent) blockStart_ = offset;
        if (isRow) return takeRow(row);
        takeCell(row, offset);
    }

    void takeRow(std::uint32_t number) {
        slots_[number] = static_cast<std::uint32_t>(rows_.size());
        rows_.push_back({number, absent});
    }

    void takeCell(std::uint32_t number, std::uint32_t offset) {
        const std::uint32_t slot = slots_[number];
        if (slot >= rows_.size() || rows_[slot].row != number) return; // a row of another block, or of none
        if (rows_[slot].firstCell == absent) rows_[slot].firstCell = offset;
    }

    void takeDbCell(const RecordWalk& record) {
        dbCells_.push_back(static_cast<std::uint32_t>(record.offset()));
        if (record.first32() == unfilledBlock && blockStart_ != absent) fill(record);
        blockStart_ = absent;
        rows_.clear();
    }

    void fill(const RecordWalk& record) {
        std::size_t entry = record.offset() + recordHeaderSize;
        const std::size_t end = entry + record.payloadSize();
        out_.set32(entry, static_cast<std::uint32_t>(record.offset()) - blockStart_);
        entry += 4;
        auto reference = static_cast<std::uint32_t>(blockStart_ + rowRecordSize);
        for (const RowCells& row : rows_) {
            if (row.firstCell == absent || entry + 2 > end) continue;
            out_.set16(entry, row.firstCell - reference);
            reference = row.firstCell;
            entry += 2;
        }
    }

    PatchedStream& out_;
    std::vector<std::uint32_t> dbCells_;
    std::vector<RowCells> rows_;
    std::vector<std::uint32_t> slots_ = std::vector<std::uint32_t>(65536); ///< by row: its place in rows_
    std::uint32_t blockStart_ = absent;
};

} // namespace

void patchRowIndex(SheetPatch& patch, std::span<const CellChange> fresh) {
    patchDbCells(patch);
    if (fresh.empty()) return;
    patchIndex(patch, fresh);
    patchDimensions(patch, fresh);
}

void fixRowIndex(PatchedStream& out, const SheetLayout& layout, bool rebuild, bool newBlocks) {
    std::vector<std::uint32_t> dbCells;
    if (rebuild) dbCells = BlockIndexer(out).run(out.map(layout.start));
    if (layout.index == absent) return;
    const std::uint32_t index = out.map(layout.index);
    const std::vector<std::uint8_t> payload = out.payloadAt(index);
    const std::size_t at = index + recordHeaderSize;
    if (const std::uint32_t columns = load32(&payload[12])) out.set32(at + 12, out.map(columns));
    const std::size_t listed = (payload.size() - indexHead) / 4;
    for (std::size_t i = 0; i < listed; ++i) {
        const std::size_t entry = indexHead + 4 * i;
        if (!newBlocks)
            out.set32(at + entry, out.map(load32(&payload[entry])));
        else if (i < dbCells.size())
            out.set32(at + entry, dbCells[i]);
    }
}

} // namespace zvonika::xls
