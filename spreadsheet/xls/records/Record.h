#pragma once

#include "spreadsheet/xls/records/Endian.h"
#include "spreadsheet/xls/records/RecordType.h"

#include <span>
#include <vector>

namespace zvonika::xls {

constexpr std::size_t recordHeaderSize = 4;
constexpr std::size_t maxRecordPayload = 8224; ///< longer contents go on in Continue records

/// One record of a BIFF stream: a view into the stream, valid as long as its bytes.
struct Record {
    std::uint16_t id = 0;
    std::uint32_t offset = 0; ///< of the record's header in the stream
    ByteView payload;

    RecordType type() const { return static_cast<RecordType>(id); }
    bool is(RecordType wanted) const { return id == static_cast<std::uint16_t>(wanted); }
    bool isFormula() const { return isFormulaRecord(type()); }
    std::uint32_t end() const {
        return static_cast<std::uint32_t>(offset + recordHeaderSize + payload.size());
    }
    std::uint8_t u8(std::size_t at) const { return payload[at]; }
    std::uint16_t u16(std::size_t at) const { return load16(payload.data() + at); }
    std::uint32_t u32(std::size_t at) const { return load32(payload.data() + at); }

    /// Throws FormatError (Damaged) when the payload is shorter than `size`.
    void require(std::size_t size) const;
};

[[noreturn]] void throwRecordCutOff(ByteView stream, std::uint32_t offset, std::size_t wanted);

/// The record whose header stands at `offset`. Throws FormatError (Damaged) when the stream ends before the
/// record.
inline Record recordAt(ByteView stream, std::uint32_t offset) {
    if (stream.size() < recordHeaderSize || offset > stream.size() - recordHeaderSize)
        throwRecordCutOff(stream, offset, recordHeaderSize);
    const std::uint8_t* header = stream.data() + offset;
    const std::size_t size = load16(header + 2);
    if (size > stream.size() - recordHeaderSize - offset)
        throwRecordCutOff(stream, offset, recordHeaderSize + size);
    return {load16(header), offset, stream.subspan(offset + recordHeaderSize, size)};
}

/// Whether a whole record of this type stands at `offset`; false at the end of the stream, too.
bool isRecordAt(ByteView stream, std::size_t offset, RecordType type);

/// End of a cell record with everything that belongs to it: shared formula, array, cached string,
/// continuations.
std::uint32_t endOfCell(ByteView stream, std::uint32_t offset);

/// Appends a record. `payload` holds at most maxRecordPayload bytes.
void appendRecord(std::vector<std::uint8_t>& out, RecordType type, ByteView payload);

} // namespace zvonika::xls
