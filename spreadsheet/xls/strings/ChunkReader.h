#pragma once

#include "spreadsheet/xls/records/Endian.h"
#include "spreadsheet/xls/records/RecordType.h"

#include <string>

namespace zvonika::xls {

/// Reads on through a record and the Continue records behind it. Throws FormatError (Damaged) at their end.
class ChunkReader {
public:
    /// Starts at `position`, inside the payload that ends at `chunkEnd`.
    /// `of`: the record, for errors.
    ChunkReader(ByteView stream, std::uint32_t position, std::uint32_t chunkEnd, RecordType of)
        : stream_(stream), position_(position), chunkEnd_(chunkEnd), of_(of) {}

    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    void skip(std::uint32_t bytes);

    /// Reads `count` characters, which a Continue record may interrupt: it then repeats the width flag.
    /// `out` may be null to skip them.
    void units(std::uint32_t count, bool wide, std::u16string* out);

    /// Offset in the stream of the next byte (of the end of a record when that is exhausted).
    std::uint32_t position() const { return position_; }
    std::uint32_t chunkEnd() const { return chunkEnd_; }
    /// Goes into the next Continue record if the present one is exhausted; false when there is none.
    bool atData();

private:
    void needData();

    ByteView stream_;
    std::uint32_t position_;
    std::uint32_t chunkEnd_;
    RecordType of_;
};

} // namespace zvonika::xls
