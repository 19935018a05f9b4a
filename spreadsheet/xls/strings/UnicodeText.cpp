#include "spreadsheet/xls/strings/UnicodeText.h"

#include "spreadsheet/xls/FormatError.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::uint8_t wideFlag = 0x01;
constexpr std::uint8_t phoneticFlag = 0x04;
constexpr std::uint8_t richFlag = 0x08;

} // namespace

TextHead readTextHead(ChunkReader& reader) {
    TextHead head;
    head.units = reader.u16();
    const std::uint8_t flags = reader.u8();
    head.wide = flags & wideFlag;
    if (flags & richFlag) head.richRuns = reader.u16();
    if (flags & phoneticFlag) head.phoneticBytes = reader.u32();
    return head;
}

void skipTextBody(ChunkReader& reader, const TextHead& head) {
    reader.units(head.units, head.wide, nullptr);
    reader.skip(std::uint32_t{4} * head.richRuns);
    reader.skip(head.phoneticBytes);
}

std::u16string readInlineText(ByteView stream, std::uint32_t position, std::uint32_t chunkEnd) {
    std::u16string text;
    ChunkReader reader(stream, position, chunkEnd, RecordType::String);
    try {
        const TextHead head = readTextHead(reader);
        reader.units(head.units, head.wide, &text);
    } catch (const FormatError&) {
        // The workbook is open by now; half a text in one cell is no reason to lose the rest.
    }
    return text;
}

std::u16string readShortText(ByteView stream, std::uint32_t position, std::uint32_t end) {
    std::u16string text;
    ChunkReader reader(stream, position, end, RecordType::BoundSheet);
    const std::uint8_t units = reader.u8();
    const bool wide = reader.u8() & wideFlag;
    reader.units(units, wide, &text);
    return text;
}

namespace {

/// Flags and characters; one byte per character where that is enough.
void appendUnits(std::vector<std::uint8_t>& out, const std::u16string& text) {
    const bool narrow = isNarrow(text);
    out.push_back(narrow ? 0 : wideFlag);
    for (const char16_t unit : text) {
        out.push_back(static_cast<std::uint8_t>(unit));
        if (!narrow) out.push_back(static_cast<std::uint8_t>(unit >> 8));
    }
}

} // namespace

void appendShortText(std::vector<std::uint8_t>& out, const std::u16string& text) {
    out.push_back(static_cast<std::uint8_t>(text.size()));
    appendUnits(out, text);
}

void appendLongText(std::vector<std::uint8_t>& out, const std::u16string& text) {
    append16(out, static_cast<std::uint32_t>(text.size()));
    appendUnits(out, text);
}

bool isNarrow(const std::u16string& text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit < 0x100; });
}

} // namespace zvonika::xls
