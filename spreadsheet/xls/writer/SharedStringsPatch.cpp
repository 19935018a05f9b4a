#include "spreadsheet/xls/writer/SharedStringsPatch.h"

#include "spreadsheet/xls/records/Record.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t countsSize = StringTableWriter::countsSize;
constexpr std::size_t entrySize = 8;
constexpr std::size_t maxEntries = (maxRecordPayload - 2) / entrySize;

/// Payload bytes of the record that the table's last text ends in, up to there.
std::uint32_t usedInLastRecord(const WorkbookModel& model) {
    if (model.globals.sst == absent) return countsSize;
    return static_cast<std::uint32_t>(model.strings.textsEnd() - model.strings.lastRecordOffset() -
                                      recordHeaderSize);
}

std::uint32_t oldReferences(const WorkbookModel& model) {
    std::uint32_t count = 0;
    for (const SheetLayout& layout : model.layouts)
        count += layout.sharedTexts;
    return count;
}

} // namespace

SharedStringsPatch::SharedStringsPatch(const WorkbookModel& model, const TextPool& pool,
                                       const std::vector<bool>& used)
    : model_(model), indexes_(pool.size()), writer_(usedInLastRecord(model)) {
    const bool anyUsed = std::ranges::find(used, true) != used.end();
    const auto known =
        anyUsed ? model.strings.find(pool) : std::vector<std::optional<std::uint32_t>>(pool.size());
    for (std::uint32_t id = 0; id < pool.size(); ++id) {
        if (!used[id]) continue;
        indexes_[id] = known[id] ? *known[id] : newSize();
        if (!known[id]) fresh_.push_back(&pool.text(id));
    }
    layOut();
}

std::uint32_t SharedStringsPatch::newSize() const {
    return model_.strings.size() + static_cast<std::uint32_t>(fresh_.size());
}

void SharedStringsPatch::layOut() {
    places_.reserve(fresh_.size());
    for (const std::u16string* text : fresh_)
        places_.push_back(writer_.add(*text));
}

void SharedStringsPatch::apply(std::uint32_t references, PatchList& patches) {
    if (model_.globals.sst == absent) {
        if (!fresh_.empty()) createTable(references, patches);
        return;
    }
    if (fresh_.empty() && references == oldReferences(model_)) return;
    const Record sst = recordAt(model_.stream, model_.globals.sst);
    std::uint8_t counts[countsSize];
    store32(counts, references);
    store32(counts + 4, fresh_.empty() ? sst.u32(4) : newSize());
    patches.replace(static_cast<std::uint32_t>(sst.offset + recordHeaderSize), countsSize, counts);
    if (!fresh_.empty()) appendTexts(patches);
    if (!fresh_.empty() && model_.globals.extSst != absent) patchIndex(patches);
}

void SharedStringsPatch::createTable(std::uint32_t references, PatchList& patches) const {
    patches.insert(model_.globals.eof, writer_.wholeTable(references, newSize()));
}

void SharedStringsPatch::appendTexts(PatchList& patches) const {
    const SharedStrings& strings = model_.strings;
    std::uint8_t size[2];
    store16(size, usedInLastRecord(model_) + writer_.addedToFirst());
    patches.replace(strings.lastRecordOffset() + 2, 2, size);
    // What stands behind the last text is no text: it would be read as one now.
    patches.replace(strings.textsEnd(), strings.end() - strings.textsEnd(), writer_.bytes());
}

void SharedStringsPatch::patchIndex(PatchList& patches) const {
    const Record old = recordAt(model_.stream, model_.globals.extSst);
    const std::uint32_t perBucket = old.payload.size() < 2 ? 0 : old.u16(0);
    if (perBucket == 0) return;
    std::vector<std::uint8_t> entries(old.payload.begin() + 2, old.payload.end());
    entries.resize(std::min<std::size_t>(entries.size() / entrySize,
                                         (model_.strings.size() + perBucket - 1) / perBucket) *
                   entrySize);
    for (std::size_t i = 0; i < places_.size(); ++i) {
        if ((model_.strings.size() + i) % perBucket != 0) continue;
        append32(entries, places_[i].offset);
        append32(entries, places_[i].inRecord);
    }
    std::uint32_t step = 1;
    while (entries.size() / entrySize > maxEntries * step || perBucket * step < 8)
        step *= 2;
    std::vector<std::uint8_t> payload;
    append16(payload, perBucket * step);
    for (std::size_t i = 0; i * entrySize < entries.size(); i += step)
        payload.insert(payload.end(), &entries[i * entrySize], &entries[i * entrySize] + entrySize);
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::ExtSst, payload);
    patches.replace(old.offset, old.end() - old.offset, record);
}

void SharedStringsPatch::fix(std::vector<std::uint8_t>& out, const PatchList& patches) const {
    if (model_.globals.extSst == absent) return;
    const Record index = recordAt(out, patches.map(model_.globals.extSst));
    const std::uint32_t perBucket = index.payload.size() < 2 ? 0 : index.u16(0);
    const SharedStrings& strings = model_.strings;
    // An insertion at the very end of the table has moved what `map` answers behind itself.
    const bool inserted = strings.textsEnd() == strings.end() && !fresh_.empty();
    const std::uint32_t freshAt =
        patches.map(strings.textsEnd()) - (inserted ? static_cast<std::uint32_t>(writer_.bytes().size()) : 0);
    for (std::size_t i = 0; 2 + (i + 1) * entrySize <= index.payload.size(); ++i) {
        std::uint8_t* entry = &out[index.offset + recordHeaderSize + 2 + i * entrySize];
        const bool isFresh = i * perBucket >= strings.size();
        store32(entry, isFresh && !fresh_.empty() ? freshAt + load32(entry) : patches.map(load32(entry)));
    }
}

} // namespace zvonika::xls
