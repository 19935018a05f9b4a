#include "spreadsheet/xls/biff5/FormulaTranslation.h"

#include "spreadsheet/xls/biff5/Formats.h"
#include "spreadsheet/xls/biff5/FormulaTokens.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

namespace zvonika::xls {

namespace {

constexpr std::size_t formulaHead = 20; ///< before the length of the tokens, in both versions
constexpr std::size_t sharedHead = 8;
constexpr std::size_t arrayHead = 12;
constexpr std::size_t resultAt = 6;
constexpr std::uint16_t noNumber = 0xFFFF;

bool isPart(const Record& record) {
    return record.is(RecordType::ShrFmla) || record.is(RecordType::Array) || record.is(RecordType::Table);
}

} // namespace

FormulaTranslation::FormulaTranslation(ByteView stream, std::uint32_t sheet, const CodePage& codePage)
    : stream_(stream), codePage_(&codePage) {
    Record record = recordAt(stream, sheet);
    CellKey holder = 0;
    for (int depth = 1; depth > 0;) {
        record = recordAt(stream, record.end());
        if (record.is(RecordType::Bof)) ++depth;
        if (record.is(RecordType::Eof)) --depth;
        if (record.isFormula()) {
            checkedColumns(record);
            holder = cellKey(record.u16(0), record.u16(2));
        }
        if (depth == 1 && isPart(record) && convertedPart(record)) holders_.insert(holder);
    }
}

std::optional<FormulaTranslation::Bytes> FormulaTranslation::converted(const Record& record,
                                                                       std::size_t headSize) const {
    record.require(headSize + 2);
    const std::size_t length = record.u16(headSize);
    if (record.payload.size() - headSize - 2 < length) return std::nullopt;
    const auto tokens = convertTokens(record.payload.subspan(headSize + 2, length), *codePage_);
    if (!tokens) return std::nullopt;
    Bytes payload(record.payload.begin(), record.payload.begin() + static_cast<std::ptrdiff_t>(headSize));
    append16(payload, static_cast<std::uint32_t>(tokens->size()));
    payload.insert(payload.end(), tokens->begin(), tokens->end());
    return payload;
}

std::optional<FormulaTranslation::Bytes> FormulaTranslation::convertedPart(const Record& record) const {
    if (record.is(RecordType::ShrFmla)) return converted(record, sharedHead);
    if (record.is(RecordType::Array)) return converted(record, arrayHead);
    return Bytes(record.payload.begin(), record.payload.end());
}

FormulaTranslation::Bytes FormulaTranslation::convertedText(const Record& record) const {
    Bytes payload;
    appendLongText(payload, longTextAt(record, 0, *codePage_));
    return payload;
}

bool FormulaTranslation::append(const Record& formula, Bytes& out) const {
    const auto payload = converted(formula, formulaHead);
    const auto anchor = formulaAnchor(formula);
    if (!payload || (anchor && !holders_.contains(anchor->key))) return false;
    appendRecord(out, RecordType::Formula, *payload);
    const std::uint32_t end = endOfCell(stream_, formula.offset);
    for (std::uint32_t at = formula.end(); at < end;) {
        const Record record = recordAt(stream_, at);
        if (isPart(record)) {
            if (const auto part = convertedPart(record)) appendRecord(out, record.type(), *part);
        } else if (record.is(RecordType::String)) {
            appendRecord(out, record.type(), convertedText(record));
        }
        at = record.end();
    }
    return true;
}

FormulaResult FormulaTranslation::result(const Record& formula) const {
    const std::uint8_t* bytes = formula.payload.data() + resultAt;
    FormulaResult result;
    if (load16(bytes + 6) != noNumber) {
        result.content = {CellContent::Kind::Number, 0, 0, loadDouble(bytes)};
    } else if (bytes[0] == 1 || bytes[0] == 2) {
        const auto kind = bytes[0] == 1 ? CellContent::Kind::Bool : CellContent::Kind::Error;
        result.content = {kind, bytes[2], 0, 0};
    } else if (bytes[0] == 0) {
        result.isText = true;
        const std::uint32_t end = endOfCell(stream_, formula.offset);
        for (std::uint32_t at = formula.end(); at < end; at = recordAt(stream_, at).end())
            if (isRecordAt(stream_, at, RecordType::String))
                result.text = longTextAt(recordAt(stream_, at), 0, *codePage_);
    }
    return result;
}

} // namespace zvonika::xls
