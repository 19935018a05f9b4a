#include "spreadsheet/xls/strings/SharedStrings.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Record.h"
#include "spreadsheet/xls/strings/ChunkReader.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t countsSize = 8;
constexpr std::size_t smallestText = 3;

} // namespace

SharedStrings::SharedStrings(ByteView stream, std::uint32_t offset) : stream_(stream), recordOffset_(offset) {
    const Record sst = recordAt(stream, offset);
    sst.require(countsSize);
    findChunks();
    findTexts(sst.u32(4));
    starts_.shrink_to_fit();
}

void SharedStrings::findChunks() {
    Record record = recordAt(stream_, recordOffset_);
    chunkEnds_.push_back(record.end());
    while (isRecordAt(stream_, record.end(), RecordType::Continue)) {
        record = recordAt(stream_, record.end());
        chunkEnds_.push_back(record.end());
    }
    end_ = record.end();
}

void SharedStrings::findTexts(std::uint32_t count) {
    const auto first = static_cast<std::uint32_t>(recordOffset_ + recordHeaderSize + countsSize);
    ChunkReader reader(stream_, first, chunkEnds_.front(), RecordType::Sst);
    // A damaged count must not ask for more memory than the bytes could justify.
    starts_.reserve(std::min<std::size_t>(count, (end_ - recordOffset_) / smallestText));
    textsEnd_ = first;
    while (starts_.size() < count && reader.atData()) {
        starts_.push_back(reader.position());
        skipTextBody(reader, readTextHead(reader));
        textsEnd_ = reader.position();
    }
    const auto chunk = std::ranges::lower_bound(chunkEnds_, textsEnd_);
    lastRecordOffset_ = chunk == chunkEnds_.begin() ? recordOffset_ : *std::prev(chunk);
}

std::uint32_t SharedStrings::chunkEnd(std::uint32_t position) const {
    return *std::ranges::upper_bound(chunkEnds_, position);
}

std::uint32_t SharedStrings::startInRecord(std::uint32_t index) const {
    const auto chunk = std::ranges::upper_bound(chunkEnds_, starts_[index]);
    return starts_[index] - (chunk == chunkEnds_.begin() ? recordOffset_ : *std::prev(chunk));
}

/// The characters of a text without formatting that lies in one record, as most do; else null.
const std::uint8_t* SharedStrings::plainUnits(std::uint32_t index, std::size_t& units, bool& wide) const {
    const std::uint32_t start = starts_[index];
    const std::uint32_t end = chunkEnd(start);
    if (end - start < smallestText) return nullptr;
    const std::uint8_t flags = stream_[start + 2];
    units = load16(&stream_[start]);
    wide = flags & 1;
    const std::size_t bytes = units << static_cast<unsigned>(wide);
    return (flags & ~1) == 0 && end - start - smallestText >= bytes ? stream_.data() + start + smallestText
                                                                    : nullptr;
}

void SharedStrings::read(std::uint32_t index, std::u16string& text) const {
    std::size_t units = 0;
    bool wide = false;
    const std::uint8_t* bytes = plainUnits(index, units, wide);
    if (!bytes) {
        text = readInlineText(stream_, starts_[index], chunkEnd(starts_[index]));
        return;
    }
    text.resize(units);
    for (std::size_t i = 0; i < units; ++i)
        text[i] = static_cast<char16_t>(wide ? load16(bytes + 2 * i) : bytes[i]);
}

std::vector<std::optional<std::uint32_t>> SharedStrings::find(const TextPool& pool) const {
    std::vector<std::optional<std::uint32_t>> found(pool.size());
    std::vector<bool> lengths(65536);
    for (std::uint32_t id = 0; id < pool.size(); ++id)
        lengths[pool.text(id).size()] = true;
    std::u16string text;
    for (std::uint32_t index = 0; index < size(); ++index) {
        ChunkReader reader(stream_, starts_[index], chunkEnd(starts_[index]), RecordType::Sst);
        const TextHead head = readTextHead(reader);
        if (!lengths[head.units] || !head.isPlain()) continue;
        text.clear();
        reader.units(head.units, head.wide, &text);
        if (const auto id = pool.find(text); id >= 0 && !found[static_cast<std::size_t>(id)])
            found[static_cast<std::size_t>(id)] = index;
    }
    return found;
}

} // namespace zvonika::xls
