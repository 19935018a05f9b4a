#include "spreadsheet/xls/book/SheetLayout.h"

#include "spreadsheet/xls/FormatError.h"

#include <algorithm>

namespace zvonika::xls {

const CellSlot* SheetLayout::findCell(CellKey key) const {
    const CellSlot* begin = cells.data();
    const CellSlot* end = begin + cells.size();
    if (!rowStarts.empty()) {
        const std::uint32_t row = rowOf(key);
        if (row + 1 >= rowStarts.size()) return nullptr;
        end = begin + rowStarts[row + 1];
        begin += rowStarts[row];
    }
    const auto before = [](CellKey k, const CellSlot& slot) { return k < slot.key; };
    const CellSlot* behind = std::upper_bound(begin, end, key, before);
    return behind != begin && behind[-1].key == key ? behind - 1 : nullptr;
}

std::span<const CellSlot> SheetLayout::recordsOf(CellKey key) const {
    const CellSlot* last = findCell(key);
    if (!last) return {};
    const CellSlot* first = last;
    while (first != cells.data() && first[-1].key == key)
        --first;
    return {first, last + 1};
}

const RowSlot* SheetLayout::findRow(std::uint32_t row) const {
    const auto behind = std::ranges::upper_bound(rows, row, {}, &RowSlot::row);
    if (behind == rows.begin() || std::prev(behind)->row != row) return nullptr;
    return &*std::prev(behind);
}

const RowBlock* SheetLayout::blockAt(std::uint32_t offset) const {
    const auto block = std::ranges::lower_bound(blocks, offset, {}, &RowBlock::dbCell);
    return block == blocks.end() || offset < block->start ? nullptr : &*block;
}

std::uint32_t SheetLayout::tablePosition() const {
    if (settingsEnd != absent) return settingsEnd;
    return window2 != absent ? window2 : eof;
}

namespace {

/// Indexes a sheet's records in one pass.
class LayoutReader {
public:
    LayoutReader(ByteView stream, const SheetEntry& entry, std::uint32_t sharedStrings)
        : stream_(stream), sharedStrings_(sharedStrings), hasCells_(entry.hasCells()) {
        layout_.start = entry.position;
        // About as many cells as texts would fit; what is not used costs no memory but addresses.
        constexpr std::size_t textCell = 14;
        layout_.cells.reserve((stream.size() - std::min<std::size_t>(stream.size(), entry.position)) /
                              textCell);
    }

    SheetLayout read() {
        Record record = begin();
        int depth = 1;
        while (depth > 0) {
            record = recordAt(stream_, record.end());
            if (record.is(RecordType::Bof))
                ++depth;
            else if (record.is(RecordType::Eof))
                --depth;
            else if (depth == 1 && hasCells_)
                take(record);
        }
        layout_.eof = record.offset;
        sort();
        indexRows();
        return std::move(layout_);
    }

private:
    Record begin() const {
        const Record bof = recordAt(stream_, layout_.start);
        if (!bof.is(RecordType::Bof))
            throw FormatError(Refusal::Damaged, "BoundSheet", layout_.start, "Bof at the sheet's position",
                              recordName(bof.id));
        return bof;
    }

    void take(const Record& record) {
        if (isCellRecord(record.type())) return takeCells(record);
        if (layout_.rows.empty() && layout_.cells.empty()) followSettings(record);
        switch (record.type()) {
        case RecordType::Row:
            takeRow(record);
            break;
        case RecordType::DbCell:
            takeBlock(record);
            break;
        case RecordType::Uncalced:
            keepFirst(layout_.uncalced, record, 0);
            break;
        case RecordType::Index:
            keepFirst(layout_.index, record, 16);
            break;
        case RecordType::Dimensions:
            keepFirst(layout_.dimensions, record, 12);
            break;
        case RecordType::DefColWidth:
            keepFirst(layout_.defColWidth, record, 2);
            break;
        case RecordType::StandardWidth:
            keepFirst(layout_.standardWidth, record, 2);
            break;
        case RecordType::DefaultRowHeight:
            keepFirst(layout_.defaultRowHeight, record, 4);
            break;
        case RecordType::Window2:
            keepFirst(layout_.window2, record, 2);
            break;
        case RecordType::Pane:
            keepFirst(layout_.pane, record, 9);
            break;
        case RecordType::Scl:
            keepFirst(layout_.scl, record, 0);
            break;
        case RecordType::Selection:
            keep(layout_.selections, record, 9);
            break;
        case RecordType::ColInfo:
            keep(layout_.colInfos, record, 10);
            break;
        default:
            break;
        }
    }

    /// Some writers put the page settings behind Dimensions.
    void followSettings(const Record& record) {
        if (layout_.window2 != absent) return;
        const bool goesOn = record.is(RecordType::Continue) && record.offset == layout_.settingsEnd;
        if (goesOn || standsBeforeCells(record.type())) layout_.settingsEnd = record.end();
    }

    static void keepFirst(std::uint32_t& place, const Record& record, std::size_t size) {
        record.require(size);
        if (place == absent) place = record.offset;
    }

    static void keep(std::vector<std::uint32_t>& places, const Record& record, std::size_t size) {
        record.require(size);
        places.push_back(record.offset);
    }

    void takeCells(const Record& record) {
        const ColumnRun run = checkedColumns(record);
        if (record.is(RecordType::LabelSst) && record.u32(6) >= sharedStrings_)
            throw FormatError(Refusal::Damaged, "LabelSst", record.offset,
                              "a shared string below " + std::to_string(sharedStrings_),
                              std::to_string(record.u32(6)));
        layout_.sharedTexts += record.is(RecordType::LabelSst);
        layout_.formulas += record.isFormula();
        const std::uint32_t row = cellRow(record);
        for (std::uint32_t i = 0; i < run.count; ++i)
            layout_.cells.push_back({cellKey(row, run.first + i), record.offset});
        if (!isBlankRecord(record.type())) layout_.used.include(layout_.cells.back().key);
        extendBlock(record, row);
    }

    void takeRow(const Record& record) {
        record.require(16);
        layout_.rows.push_back({record.u16(0), record.offset});
        extendBlock(record, record.u16(0));
    }

    void extendBlock(const Record& record, std::uint32_t row) {
        if (row >= block_.firstRow && row <= block_.lastRow && block_.start != 0) return;
        if (block_.start == 0) block_ = {record.offset, 0, row, row};
        block_.firstRow = std::min(block_.firstRow, row);
        block_.lastRow = std::max(block_.lastRow, row);
    }

    void takeBlock(const Record& record) {
        record.require(4);
        ++layout_.dbCells;
        if (block_.start == 0) return; // a DbCell record of no rows
        block_.dbCell = record.offset;
        layout_.blocks.push_back(block_);
        block_ = {};
    }

    void sort() {
        const auto sortBy = [](auto& slots, auto member) {
            if (!std::ranges::is_sorted(slots, {}, member)) std::ranges::stable_sort(slots, {}, member);
            if (slots.size() < slots.capacity() / 4 * 3) slots.shrink_to_fit();
        };
        sortBy(layout_.cells, &CellSlot::key);
        sortBy(layout_.rows, &RowSlot::row);
    }

    /// Not for few cells far down: many such sheets in a small file would fill the memory.
    void indexRows() {
        auto& starts = layout_.rowStarts;
        if (layout_.cells.empty() || rowOf(layout_.cells.back().key) > 4 * layout_.cells.size()) return;
        starts.reserve(rowOf(layout_.cells.back().key) + 2);
        for (std::uint32_t i = 0; i < layout_.cells.size(); ++i)
            while (starts.size() <= rowOf(layout_.cells[i].key))
                starts.push_back(i);
        starts.push_back(static_cast<std::uint32_t>(layout_.cells.size()));
    }

    ByteView stream_;
    std::uint32_t sharedStrings_;
    bool hasCells_;
    SheetLayout layout_;
    RowBlock block_;
};

} // namespace

SheetLayout readSheetLayout(ByteView stream, const SheetEntry& entry, std::uint32_t sharedStrings) {
    return LayoutReader(stream, entry, sharedStrings).read();
}

} // namespace zvonika::xls
