#include "spreadsheet/xls/writer/SharedStringsPatch.h"

#include "spreadsheet/xls/records/Record.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t countsSize = StringTableWriter::countsSize;
constexpr std::size_t entrySize = 8;
constexpr std::size_t maxEntries = (maxRecordPayload - 2) / entrySize;
constexpr std::uint32_t fewestInBucket = 8;

/// Payload bytes of the record that the table's last text ends in, up to there.
std::uint32_t usedInLastRecord(const WorkbookModel& model) {
    if (model.globals.sst == absent) return countsSize;
    return static_cast<std::uint32_t>(model.strings.textsEnd() - model.strings.lastRecordOffset() -
                                      recordHeaderSize);
}

std::uint32_t endWithContinues(ByteView stream, const Record& record) {
    std::uint32_t end = record.end();
    while (isRecordAt(stream, end, RecordType::Continue))
        end = recordAt(stream, end).end();
    return end;
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

/// Made anew, for some writers leave off before their last text: entries added there would stand for others.
void SharedStringsPatch::patchIndex(PatchList& patches) const {
    const Record old = recordAt(model_.stream, model_.globals.extSst);
    std::uint32_t perBucket = old.payload.size() < 2 || old.u16(0) == 0 ? fewestInBucket : old.u16(0);
    while (perBucket < fewestInBucket || (newSize() - 1) / perBucket >= maxEntries)
        perBucket *= 2;
    std::vector<std::uint8_t> payload;
    append16(payload, perBucket);
    const SharedStrings& strings = model_.strings;
    for (std::uint32_t text = 0; text < newSize(); text += perBucket) {
        const bool isFresh = text >= strings.size();
        append32(payload, isFresh ? places_[text - strings.size()].offset : strings.start(text));
        append32(payload, isFresh ? places_[text - strings.size()].inRecord : strings.startInRecord(text));
    }
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::ExtSst, payload);
    patches.replace(old.offset, endWithContinues(model_.stream, old) - old.offset, record);
}

void SharedStringsPatch::fix(PatchedStream& out) const {
    if (model_.globals.extSst == absent) return;
    const std::uint32_t index = out.map(model_.globals.extSst);
    const std::vector<std::uint8_t> payload = out.payloadAt(index);
    const std::uint32_t perBucket = payload.size() < 2 ? 0 : load16(payload.data());
    const SharedStrings& strings = model_.strings;
    // An insertion at the very end of the table has moved what `map` answers behind itself.
    const bool inserted = strings.textsEnd() == strings.end() && !fresh_.empty();
    const std::uint32_t freshAt =
        out.map(strings.textsEnd()) - (inserted ? static_cast<std::uint32_t>(writer_.bytes().size()) : 0);
    for (std::size_t i = 0, at = 2; at + entrySize <= payload.size(); ++i, at += entrySize) {
        const std::uint32_t old = load32(&payload[at]);
        const bool isFresh = i * perBucket >= strings.size() && !fresh_.empty();
        out.set32(index + recordHeaderSize + at, isFresh ? freshAt + old : out.map(old));
    }
}

} // namespace zvonika::xls
