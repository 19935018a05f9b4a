#include "spreadsheet/xls/records/Record.h"

#include "spreadsheet/xls/FormatError.h"

namespace zvonika::xls {

void throwRecordCutOff(ByteView stream, std::uint32_t offset, std::size_t wanted) {
    const std::size_t left = offset < stream.size() ? stream.size() - offset : 0;
    const std::string place = left >= 2 ? recordName(load16(stream.data() + offset)) : "record header";
    throw FormatError(Refusal::Damaged, place, offset, std::to_string(wanted) + " bytes",
                      std::to_string(left) + " bytes to the end of the stream");
}

void Record::require(std::size_t size) const {
    if (payload.size() >= size) return;
    throw FormatError(Refusal::Damaged, recordName(id), offset, "at least " + std::to_string(size) + " bytes",
                      std::to_string(payload.size()) + " bytes");
}

bool isRecordAt(ByteView stream, std::size_t offset, RecordType type) {
    if (offset > stream.size() || stream.size() - offset < recordHeaderSize) return false;
    const std::uint8_t* header = stream.data() + offset;
    return load16(header) == static_cast<std::uint16_t>(type) &&
           load16(header + 2) <= stream.size() - offset - recordHeaderSize;
}

std::uint32_t endOfCell(ByteView stream, std::uint32_t offset) {
    std::uint32_t end = recordAt(stream, offset).end();
    while (end + recordHeaderSize <= stream.size()) {
        const Record next = recordAt(stream, end);
        if (!followsCell(next.type())) break;
        end = next.end();
    }
    return end;
}

void appendRecord(std::vector<std::uint8_t>& out, RecordType type, ByteView payload) {
    append16(out, static_cast<std::uint16_t>(type));
    append16(out, static_cast<std::uint32_t>(payload.size()));
    out.insert(out.end(), payload.begin(), payload.end());
}

} // namespace zvonika::xls
