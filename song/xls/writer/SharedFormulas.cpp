#include "song/xls/writer/SharedFormulas.h"

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

bool coversSeveralCells(const Record& array) {
    if (array.payload.size() < 6) return true;
    return array.u16(0) != array.u16(2) || array.u8(4) != array.u8(5);
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
        if (!slot || !recordAt(patch.stream, slot->record).is(RecordType::Formula)) continue;
        if (attached(patch.stream, slot->record, RecordType::ShrFmla) != absent) orphans[change.key];
    }
    if (orphans.empty()) return orphans;
    for (const CellSlot& slot : patch.layout.cells) {
        const Record record = recordAt(patch.stream, slot.record);
        if (!record.is(RecordType::Formula) || isChanged(changes, slot.key)) continue;
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

bool isPartOfArray(ByteView stream, const SheetLayout& layout, CellKey key) {
    const CellSlot* slot = layout.findCell(key);
    if (!slot) return false;
    const Record record = recordAt(stream, slot->record);
    const auto anchor = record.is(RecordType::Formula) ? formulaAnchor(record) : std::nullopt;
    if (!anchor || anchor->isTable) return anchor.has_value();
    const CellSlot* holder = layout.findCell(anchor->key);
    if (!holder) return false;
    if (attached(stream, holder->record, RecordType::Table) != absent) return true;
    const std::uint32_t array = attached(stream, holder->record, RecordType::Array);
    return array != absent && coversSeveralCells(recordAt(stream, array));
}

void moveSharedFormulas(SheetPatch& patch, std::span<const CellChange> changes) {
    for (const auto& [key, heirs] : orphans(patch, changes)) {
        if (heirs.empty()) continue;
        const std::uint32_t holder = patch.layout.findCell(key)->record;
        moveTo(patch, recordAt(patch.stream, attached(patch.stream, holder, RecordType::ShrFmla)), heirs);
    }
}

} // namespace zvonika::xls
