#include "spreadsheet/xls/biff5/Formats.h"

#include "spreadsheet/xls/strings/UnicodeText.h"

namespace zvonika::xls {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t fontHead = 14;
constexpr std::uint16_t builtInStyle = 0x8000;

Bytes head(const Record& record, std::size_t size) {
    record.require(size);
    return Bytes(record.payload.begin(), record.payload.begin() + static_cast<std::ptrdiff_t>(size));
}

constexpr std::uint32_t bits(std::uint32_t value, unsigned first, unsigned count) {
    return (value >> first) & ((1U << count) - 1);
}

/// None, letters one below the other, upwards, downwards: now an angle.
std::uint8_t rotation(std::uint32_t orientation) {
    constexpr std::uint8_t angles[] = {0, 255, 90, 180};
    return angles[orientation];
}

} // namespace

std::u16string shortTextAt(const Record& record, std::size_t at, const CodePage& codePage) {
    record.require(at + 1);
    const std::size_t length = record.u8(at);
    record.require(at + 1 + length);
    return codePage.decode(record.payload.subspan(at + 1, length));
}

std::u16string longTextAt(const Record& record, std::size_t at, const CodePage& codePage) {
    record.require(at + 2);
    const std::size_t length = record.u16(at);
    record.require(at + 2 + length);
    return codePage.decode(record.payload.subspan(at + 2, length));
}

Bytes fontPayload(const Record& font, const CodePage& codePage) {
    Bytes payload = head(font, fontHead);
    appendShortText(payload, shortTextAt(font, fontHead, codePage));
    return payload;
}

Bytes numberFormatPayload(const Record& format, const CodePage& codePage) {
    Bytes payload = head(format, 2);
    appendLongText(payload, shortTextAt(format, 2, codePage));
    return payload;
}

Bytes stylePayload(const Record& style, const CodePage& codePage) {
    Bytes payload = head(style, 2);
    if (load16(payload.data()) & builtInStyle) return head(style, 4);
    appendLongText(payload, shortTextAt(style, 2, codePage));
    return payload;
}

Bytes cellFormatPayload(const Record& xf) {
    Bytes payload = head(xf, 6);
    xf.require(16);
    const std::uint32_t area = xf.u32(8);
    const std::uint32_t border = xf.u32(12);
    payload.push_back(xf.u8(6) & 0x7F);
    payload.push_back(rotation(bits(xf.u8(7), 0, 2)));
    payload.push_back(0);
    payload.push_back(xf.u8(7) & 0xFC);
    const std::uint32_t left = bits(border, 3, 3), right = bits(border, 6, 3), top = bits(border, 0, 3);
    const std::uint32_t bottom = bits(area, 22, 3);
    append32(payload, left | right << 4 | top << 8 | bottom << 12 | bits(border, 16, 7) << 16 |
                          bits(border, 23, 7) << 23);
    append32(payload, bits(border, 9, 7) | bits(area, 25, 7) << 7 | bits(area, 16, 6) << 26);
    append16(payload, bits(area, 0, 7) | bits(area, 7, 7) << 7);
    return payload;
}

} // namespace zvonika::xls
