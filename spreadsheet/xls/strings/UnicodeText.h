#pragma once

#include "spreadsheet/xls/strings/ChunkReader.h"

#include <cstdint>
#include <string>

namespace zvonika::xls {

/// What a BIFF8 text's lead-in says.
struct TextHead {
    std::uint16_t units = 0;
    bool wide = false;
    std::uint16_t richRuns = 0;
    std::uint32_t phoneticBytes = 0;
    bool isPlain() const { return richRuns == 0 && phoneticBytes == 0; }
};

TextHead readTextHead(ChunkReader& reader);
/// Skips characters, rich text runs and phonetic data.
void skipTextBody(ChunkReader& reader, const TextHead& head);

/// The text with a 16-bit length at `position` of a payload ending at `chunkEnd`, without its formatting.
/// A text that is cut short gives what there is of it.
std::u16string readInlineText(ByteView stream, std::uint32_t position, std::uint32_t chunkEnd);

/// A sheet name: 8-bit length, flags, characters. Throws FormatError.
std::u16string readShortText(ByteView stream, std::uint32_t position, std::uint32_t end);
/// The same, for writing; one byte per character where that is enough.
void appendShortText(std::vector<std::uint8_t>& out, const std::u16string& text);
/// With a 16-bit length, as styles, number formats, headers and the stored texts of formulas have it.
void appendLongText(std::vector<std::uint8_t>& out, const std::u16string& text);

/// True when every unit fits one byte.
bool isNarrow(const std::u16string& text);

} // namespace zvonika::xls
