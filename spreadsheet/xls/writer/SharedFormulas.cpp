#include "spreadsheet/xls/writer/SharedFormulas.h"

#include <algorithm>
#include <map>
#include <vector>

namespace zvonika::xls {

namespace {

/// A record of this type that belongs to the cell record at `offset`; `absent` when there is none.
std::uint32_t attached(ByteView stream, std::uint32_t offset, RecordType type) {
    const std::uint32_t end = endOfCell(stream, offset);
    for (std::uint32_t at = recordAt(stream, offset).end(); at < end;) {
        const Record record = recordAt(stream, at);
        if (record.is(type)) return at;
        at = record.end();
    }
    return absent;
}

/// The range that an Array or Table record names.
std::optional<ArrayCells> rangeOf(const Record& array) {
    if (array.payload.size() < 6) return std::nullopt;
    return ArrayCells{cellKey(array.u16(0), array.u8(4)), cellKey(array.u16(2), array.u8(5))};
}

using Members = std::vector<CellSlot>;

bool isChanged(std::span<const CellChange> changes, CellKey key) {
    return std::ranges::binary_search(changes, key, {}, &CellChange::key);
}

/// The shared formulas in changed cells, with the unchanged cells that go on using them.
std::map<CellKey, Members> orphans(const SheetPatch& patch, std::span<const CellChange> changes) {
    std::map<CellKey, Members> orphans;
    for (const CellChange& change : changes) {
        const CellSlot* slot = patch.layout.findCell(change.key);
        if (!slot || !recordAt(patch.stream, slot->record).isFormula()) continue;
        if (attached(patch.stream, slot->record, RecordType::ShrFmla) != absent) orphans[change.key];
    }
    if (orphans.empty()) return orphans;
    for (const CellSlot& slot : patch.layout.cells) {
        const Record record = recordAt(patch.stream, slot.record);
        if (!record.isFormula() || isChanged(changes, slot.key)) continue;
        const auto anchor = formulaAnchor(record);
        const auto orphan = anchor ? orphans.find(anchor->key) : orphans.end();
        if (orphan != orphans.end()) orphan->second.push_back(slot);
    }
    return orphans;
}

void moveTo(SheetPatch& patch, const Record& formula, const Members& heirs) {
    const CellSlot& heir = heirs.front();
    const ByteView bytes = patch.stream.subspan(formula.offset, formula.end() - formula.offset);
    patch.patches.insert(recordAt(patch.stream, heir.record).end(), bytes, InsertOrder::CellTail);
    std::uint8_t anchor[4];
    store16(anchor, rowOf(heir.key));
    store16(anchor + 2, columnOf(heir.key));
    patch.touch(heir.record);
    for (const CellSlot& member : heirs) {
        patch.patches.replace(static_cast<std::uint32_t>(member.record + recordHeaderSize + formulaAnchorAt),
                              4, anchor);
    }
}

} // namespace

std::optional<ArrayCells> arrayAround(ByteView stream, const SheetLayout& layout, CellKey key) {
    const CellSlot* slot = layout.findCell(key);
    if (!slot) return std::nullopt;
    const Record record = recordAt(stream, slot->record);
    const auto anchor = record.isFormula() ? formulaAnchor(record) : std::nullopt;
    if (!anchor) return std::nullopt;
    const ArrayCells alone{key, key}; // damaged: a part of something whose extent is not known
    const CellSlot* holder = layout.findCell(anchor->key);
    if (!holder) return anchor->isTable ? std::optional(alone) : std::nullopt;
    const std::uint32_t table = attached(stream, holder->record, RecordType::Table);
    if (table != absent) return rangeOf(recordAt(stream, table)).value_or(alone);
    const std::uint32_t array = attached(stream, holder->record, RecordType::Array);
    if (array == absent) return anchor->isTable ? std::optional(alone) : std::nullopt;
    const ArrayCells range = rangeOf(recordAt(stream, array)).value_or(alone);
    if (!anchor->isTable && range.first == range.last && range.first == key) return std::nullopt;
    return range;
}

void moveSharedFormulas(SheetPatch& patch, std::span<const CellChange> changes) {
    for (const auto& [key, heirs] : orphans(patch, changes)) {
        if (heirs.empty()) continue;
        const std::uint32_t holder = patch.layout.findCell(key)->record;
        moveTo(patch, recordAt(patch.stream, attached(patch.stream, holder, RecordType::ShrFmla)), heirs);
    }
}

} // namespace zvonika::xls
