#include "spreadsheet/xls/records/CellRecord.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Rk.h"

#include <bit>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t columns = 256;
constexpr std::uint8_t expressionToken = 0x01;
constexpr std::uint8_t tableToken = 0x02;

/// Sizes of cell records: the smallest payload, and what each further column of a run takes.
struct Shape {
    std::uint8_t smallest;
    std::uint8_t step;
};

constexpr Shape shapeOf(RecordType type) {
    if (type == RecordType::LabelSst) return {10, 0}; // most of all that a song has
    switch (type) {
    case RecordType::Formula:
    case RecordType::Formula3:
    case RecordType::Formula4:
        return {22, 0};
    case RecordType::Number:
        return {14, 0};
    case RecordType::Rk:
        return {10, 0};
    case RecordType::MulRk:
        return {12, 6};
    case RecordType::Label:
    case RecordType::RString:
        return {9, 0};
    case RecordType::BoolErr:
        return {8, 0};
    case RecordType::MulBlank:
        return {8, 2};
    default:
        return {6, 0};
    }
}

void put(SmallRecord& record, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i)
        record.bytes[record.size++] = static_cast<std::uint8_t>(value >> (8 * i));
}

SmallRecord begin(RecordType type, CellKey key, std::uint16_t format, std::uint32_t payload) {
    SmallRecord record;
    put(record, static_cast<std::uint16_t>(type), 2);
    put(record, payload, 2);
    put(record, rowOf(key), 2);
    put(record, columnOf(key), 2);
    put(record, format, 2);
    return record;
}

SmallRecord encodeNumber(CellKey key, std::uint16_t format, double number) {
    if (const auto rk = encodeRk(number)) {
        SmallRecord record = begin(RecordType::Rk, key, format, 10);
        put(record, *rk, 4);
        return record;
    }
    SmallRecord record = begin(RecordType::Number, key, format, 14);
    const auto bits = std::bit_cast<std::uint64_t>(number);
    put(record, static_cast<std::uint32_t>(bits), 4);
    put(record, static_cast<std::uint32_t>(bits >> 32), 4);
    return record;
}

} // namespace

ColumnRun checkedColumns(const Record& record) {
    const Shape shape = shapeOf(record.type());
    record.require(shape.smallest);
    ColumnRun run{record.u16(2), 1};
    if (shape.step != 0) run.count = static_cast<std::uint32_t>((record.payload.size() - 6) / shape.step);
    if (run.first + run.count > columns)
        throw FormatError(Refusal::Damaged, recordName(record.id), record.offset, "columns below 256",
                          "column " + std::to_string(run.first + run.count - 1));
    return run;
}

std::uint16_t cellFormat(const Record& record, std::uint32_t column) {
    return record.u16(4 + (column - record.u16(2)) * shapeOf(record.type()).step);
}

SmallRecord encodeCell(CellKey key, std::uint16_t format, const CellContent& content) {
    switch (content.kind) {
    case CellContent::Kind::Number:
        return encodeNumber(key, format, content.number);
    case CellContent::Kind::Text: {
        SmallRecord record = begin(RecordType::LabelSst, key, format, 10);
        put(record, content.text, 4);
        return record;
    }
    case CellContent::Kind::Bool:
    case CellContent::Kind::Error: {
        SmallRecord record = begin(RecordType::BoolErr, key, format, 8);
        put(record, content.code, 1);
        put(record, content.kind == CellContent::Kind::Error, 1);
        return record;
    }
    case CellContent::Kind::Blank:
        break;
    }
    return begin(RecordType::Blank, key, format, 6);
}

std::optional<FormulaAnchor> formulaAnchor(const Record& formula) {
    if (formula.payload.size() < formulaAnchorAt + 4) return std::nullopt;
    const std::uint8_t token = formula.u8(formulaAnchorAt - 1);
    if (token != expressionToken && token != tableToken) return std::nullopt;
    return FormulaAnchor{cellKey(formula.u16(formulaAnchorAt), formula.u16(formulaAnchorAt + 2) & 0xFF),
                         token == tableToken};
}

} // namespace zvonika::xls
