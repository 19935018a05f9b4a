#include "song/xls/book/CellReader.h"

#include "song/xls/records/Rk.h"
#include "song/xls/strings/UnicodeText.h"

namespace zvonika::xls {

namespace {

constexpr std::size_t contentAt = 6; ///< behind row, column and format

Value boolOrError(std::uint8_t code, bool isError) {
    if (isError) return ErrorValue{code};
    return code != 0;
}

std::u16string textAt(ByteView stream, const Record& record, std::size_t at) {
    return readInlineText(stream, static_cast<std::uint32_t>(record.offset + recordHeaderSize + at),
                          record.end());
}

std::u16string cachedText(ByteView stream, const Record& formula) {
    const std::uint32_t end = endOfCell(stream, formula.offset);
    for (std::uint32_t at = formula.end(); at < end;) {
        const Record record = recordAt(stream, at);
        if (record.is(RecordType::String)) return textAt(stream, record, 0);
        at = record.end();
    }
    return {};
}

Value formulaResult(ByteView stream, const Record& record) {
    const std::uint8_t* result = record.payload.data() + contentAt;
    if (load16(result + 6) != 0xFFFF) return loadDouble(result);
    switch (result[0]) {
    case 0:
        return cachedText(stream, record);
    case 1:
        return boolOrError(result[2], false);
    case 2:
        return boolOrError(result[2], true);
    default:
        return std::u16string();
    }
}

} // namespace

Value readCell(ByteView stream, const SharedStrings& strings, const CellSlot& slot) {
    const Record record = recordAt(stream, slot.record);
    switch (record.type()) {
    case RecordType::Rk:
        return decodeRk(record.u32(contentAt));
    case RecordType::MulRk:
        return decodeRk(record.u32(contentAt + 6 * (columnOf(slot.key) - record.u16(2))));
    case RecordType::Number:
        return loadDouble(record.payload.data() + contentAt);
    case RecordType::LabelSst:
        return strings.at(record.u32(contentAt));
    case RecordType::Label:
    case RecordType::RString:
        return textAt(stream, record, contentAt);
    case RecordType::BoolErr:
        return boolOrError(record.u8(contentAt), record.u8(contentAt + 1) != 0);
    case RecordType::Formula:
        return formulaResult(stream, record);
    default:
        return std::monostate();
    }
}

} // namespace zvonika::xls
