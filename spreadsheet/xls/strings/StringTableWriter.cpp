#include "spreadsheet/xls/strings/StringTableWriter.h"

#include "spreadsheet/xls/records/Record.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

namespace zvonika::xls {

namespace {

bool startsPair(const std::u16string& text, std::size_t i) {
    return (text[i] & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
}

} // namespace

std::uint32_t StringTableWriter::room() const {
    return used_ < maxRecordPayload ? static_cast<std::uint32_t>(maxRecordPayload - used_) : 0;
}

void StringTableWriter::beginContinue() {
    header_ = bytes_.size();
    if (firstHeader_ == none) firstHeader_ = header_;
    append16(bytes_, static_cast<std::uint16_t>(RecordType::Continue));
    append16(bytes_, 0);
    used_ = 0;
}

void StringTableWriter::put(std::uint32_t value, bool wide) {
    if (wide)
        append16(bytes_, value);
    else
        bytes_.push_back(static_cast<std::uint8_t>(value));
    used_ += wide ? 2 : 1;
    if (header_ != none) store16(&bytes_[header_ + 2], used_);
}

StringTableWriter::Place StringTableWriter::add(const std::u16string& text) {
    const bool wide = !isNarrow(text);
    const std::uint32_t leadIn = 3 + (text.empty() ? 0 : startsPair(text, 0) ? 4 : 2);
    if (room() < leadIn) beginContinue();
    const Place place{static_cast<std::uint32_t>(bytes_.size()),
                      static_cast<std::uint32_t>(used_ + recordHeaderSize)};
    put(static_cast<std::uint32_t>(text.size()), true);
    put(wide, false);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool trail = i > 0 && startsPair(text, i - 1);
        const std::uint32_t needed = startsPair(text, i) ? 4 : wide ? 2 : 1;
        if (!trail && room() < needed) {
            beginContinue();
            put(wide, false);
        }
        put(text[i], wide);
    }
    return place;
}

std::uint32_t StringTableWriter::addedToFirst() const {
    return static_cast<std::uint32_t>(firstHeader_ == none ? bytes_.size() : firstHeader_);
}

std::vector<std::uint8_t> StringTableWriter::wholeTable(std::uint32_t references, std::uint32_t texts) const {
    std::vector<std::uint8_t> table;
    append16(table, static_cast<std::uint16_t>(RecordType::Sst));
    append16(table, countsSize + addedToFirst());
    append32(table, references);
    append32(table, texts);
    table.insert(table.end(), bytes_.begin(), bytes_.end());
    return table;
}

} // namespace zvonika::xls
