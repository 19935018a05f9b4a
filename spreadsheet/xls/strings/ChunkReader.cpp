#include "spreadsheet/xls/strings/ChunkReader.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Record.h"

#include <algorithm>

namespace zvonika::xls {

bool ChunkReader::atData() {
    while (position_ >= chunkEnd_) {
        if (!isRecordAt(stream_, chunkEnd_, RecordType::Continue)) return false;
        const Record next = recordAt(stream_, chunkEnd_);
        position_ = static_cast<std::uint32_t>(next.offset + recordHeaderSize);
        chunkEnd_ = next.end();
    }
    return true;
}

void ChunkReader::needData() {
    if (!atData())
        throw FormatError(Refusal::Damaged, recordName(static_cast<std::uint16_t>(of_)), position_,
                          "more bytes of a text or a Continue record", "the end");
}

std::uint8_t ChunkReader::u8() {
    needData();
    return stream_[position_++];
}

std::uint16_t ChunkReader::u16() {
    const std::uint32_t low = u8();
    return static_cast<std::uint16_t>(low | (static_cast<std::uint32_t>(u8()) << 8));
}

std::uint32_t ChunkReader::u32() {
    const std::uint32_t low = u16();
    return low | (static_cast<std::uint32_t>(u16()) << 16);
}

void ChunkReader::skip(std::uint32_t bytes) {
    while (bytes > 0) {
        needData();
        const std::uint32_t step = std::min(bytes, chunkEnd_ - position_);
        position_ += step;
        bytes -= step;
    }
}

void ChunkReader::units(std::uint32_t count, bool wide, std::u16string* out) {
    while (count > 0) {
        if (position_ >= chunkEnd_) {
            needData();
            wide = u8() & 1;
            continue;
        }
        const std::uint32_t width = wide ? 2 : 1;
        const std::uint32_t step = std::min(count, (chunkEnd_ - position_) / width);
        if (step == 0)
            throw FormatError(Refusal::Damaged, recordName(static_cast<std::uint16_t>(of_)), position_,
                              "a whole character", "half a character");
        if (out)
            for (std::uint32_t i = 0; i < step; ++i) {
                const std::uint8_t* unit = &stream_[position_ + i * width];
                out->push_back(static_cast<char16_t>(wide ? load16(unit) : *unit));
            }
        position_ += step * width;
        count -= step;
    }
}

} // namespace zvonika::xls
