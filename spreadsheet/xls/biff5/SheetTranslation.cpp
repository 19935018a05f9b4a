#include "spreadsheet/xls/biff5/SheetTranslation.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/biff5/Formats.h"
#include "spreadsheet/xls/biff5/FormulaTranslation.h"
#include "spreadsheet/xls/records/Bof.h"
#include "spreadsheet/xls/records/CellRecord.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t automaticGridColour = 64;

class SheetTranslator {
public:
    SheetTranslator(ByteView stream, std::uint32_t offset, const CodePage& codePage, TextPool& texts)
        : stream_(stream), codePage_(codePage), texts_(texts), bof_(beginOf(stream, offset)),
          formulas_(stream, offset, codePage) {}

    TranslatedSheet run() {
        appendBof(sheet_.bytes, worksheetSubstream);
        Record record = bof_;
        for (int depth = 1; depth > 0;) {
            record = recordAt(stream_, record.end());
            if (record.is(RecordType::Bof)) ++depth;
            if (record.is(RecordType::Eof)) --depth;
            if (depth == 1 && !record.is(RecordType::Eof)) take(record); // nested ones are charts
        }
        appendRecord(sheet_.bytes, RecordType::Eof, {});
        sheet_.end = record.offset;
        return std::move(sheet_);
    }

private:
    static Record beginOf(ByteView stream, std::uint32_t offset) {
        const Record bof = recordAt(stream, offset);
        if (bof.is(RecordType::Bof)) return bof;
        throw FormatError(Refusal::Damaged, "BoundSheet", offset, "Bof at the sheet's position",
                          recordName(bof.id));
    }

    void take(const Record& record) {
        if (isCellRecord(record.type())) return takeCell(record);
        switch (record.type()) {
        case RecordType::Dimensions:
            return put(record, dimensions(record));
        case RecordType::Window2:
            return put(record, window(record));
        case RecordType::Header:
        case RecordType::Footer:
            return put(record, headline(record));
        case RecordType::HorizontalPageBreaks:
            return put(record, pageBreaks(record, 255));
        case RecordType::VerticalPageBreaks:
            return put(record, pageBreaks(record, 65535));
        default:
            if (isSameInBiff5(record.type()))
                put(record, Bytes(record.payload.begin(), record.payload.end()));
        }
    }

    void put(const Record& record, const Bytes& payload) {
        appendRecord(sheet_.bytes, record.type(), payload);
    }

    void takeCell(const Record& record) {
        checkedColumns(record);
        switch (record.type()) {
        case RecordType::Label:
        case RecordType::RString:
            return putCell(record, textContent(longTextAt(record, 6, codePage_)));
        case RecordType::Formula:
        case RecordType::Formula3:
        case RecordType::Formula4:
            return takeFormula(record);
        default:
            put(record, Bytes(record.payload.begin(), record.payload.end()));
        }
    }

    void takeFormula(const Record& record) {
        if (formulas_.append(record, sheet_.bytes)) return;
        const FormulaResult result = formulas_.result(record);
        if (result.isText) return putCell(record, textContent(result.text));
        putCell(record, result.content);
    }

    CellContent textContent(const std::u16string& text) {
        if (text.empty()) return {};
        ++sheet_.sharedTexts;
        return {CellContent::Kind::Text, 0, texts_.intern(text), 0};
    }

    void putCell(const Record& old, const CellContent& content) {
        const SmallRecord cell = encodeCell(cellKey(old.u16(0), old.u16(2)), old.u16(4), content);
        const ByteView bytes = cell.view();
        sheet_.bytes.insert(sheet_.bytes.end(), bytes.begin(), bytes.end());
    }

    static Bytes dimensions(const Record& old) {
        old.require(8);
        Bytes payload;
        append32(payload, old.u16(0));
        append32(payload, old.u16(2));
        append16(payload, old.u16(4));
        append16(payload, old.u16(6));
        append16(payload, 0);
        return payload;
    }

    static Bytes window(const Record& old) {
        old.require(6);
        Bytes payload(old.payload.begin(), old.payload.begin() + 6);
        append16(payload, automaticGridColour);
        payload.resize(18); // no zoom of its own in page preview, none in the normal view
        return payload;
    }

    Bytes headline(const Record& old) const {
        Bytes payload;
        if (!old.payload.empty()) appendLongText(payload, shortTextAt(old, 0, codePage_));
        return payload;
    }

    /// A break reaches over the whole width (height) of the sheet.
    static Bytes pageBreaks(const Record& old, std::uint32_t last) {
        constexpr std::size_t most = 1026;
        old.require(2);
        const std::size_t count = std::min<std::size_t>({old.u16(0), (old.payload.size() - 2) / 2, most});
        Bytes payload;
        append16(payload, static_cast<std::uint32_t>(count));
        for (std::size_t i = 0; i < count; ++i) {
            append16(payload, old.u16(2 + 2 * i));
            append16(payload, 0);
            append16(payload, last);
        }
        return payload;
    }

    ByteView stream_;
    const CodePage& codePage_;
    TextPool& texts_;
    Record bof_;
    FormulaTranslation formulas_;
    TranslatedSheet sheet_;
};

} // namespace

TranslatedSheet translateSheet(ByteView stream, std::uint32_t offset, const CodePage& codePage,
                               TextPool& texts) {
    return SheetTranslator(stream, offset, codePage, texts).run();
}

} // namespace zvonika::xls
