#include "spreadsheet/xls/book/CellReader.h"

#include "spreadsheet/xls/records/Rk.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

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

void readCell(ByteView stream, const SharedStrings& strings, const CellSlot& slot, Value& value) {
    const Record record = recordAt(stream, slot.record);
    switch (record.type()) {
    case RecordType::Rk:
        value = decodeRk(record.u32(contentAt));
        break;
    case RecordType::MulRk:
        value = decodeRk(record.u32(contentAt + std::size_t{6} * (columnOf(slot.key) - record.u16(2))));
        break;
    case RecordType::Number:
        value = loadDouble(record.payload.data() + contentAt);
        break;
    case RecordType::LabelSst:
        if (!std::holds_alternative<std::u16string>(value)) value.emplace<std::u16string>();
        strings.read(record.u32(contentAt), std::get<std::u16string>(value));
        break;
    case RecordType::Label:
    case RecordType::RString:
        value = textAt(stream, record, contentAt);
        break;
    case RecordType::BoolErr:
        value = boolOrError(record.u8(contentAt), record.u8(contentAt + 1) != 0);
        break;
    case RecordType::Formula:
    case RecordType::Formula3:
    case RecordType::Formula4:
        value = formulaResult(stream, record);
        break;
    default:
        value = std::monostate();
    }
}

} // namespace zvonika::xls
