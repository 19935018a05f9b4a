#include "spreadsheet/xls/biff5/Translation.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/biff5/Formats.h"
#include "spreadsheet/xls/biff5/SheetTranslation.h"
#include "spreadsheet/xls/records/Bof.h"
#include "spreadsheet/xls/strings/StringTableWriter.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t utf16 = 1200;
constexpr std::size_t longestSheetName = 31;

struct OldSheet {
    std::uint32_t number = 0; ///< among all sheets of the old workbook
    std::uint32_t position = 0;
    std::uint32_t entry = 0; ///< offset of its BoundSheet record in the new stream
    TranslatedSheet sheet{};
};

std::vector<Record> globalsOf(ByteView stream) {
    std::vector<Record> records{recordAt(stream, 0)};
    while (!records.back().is(RecordType::Eof))
        records.push_back(recordAt(stream, records.back().end()));
    return records;
}

const Record* firstOf(const std::vector<Record>& records, RecordType type) {
    const auto found = std::ranges::find_if(records, [&](const Record& record) { return record.is(type); });
    return found == records.end() ? nullptr : &*found;
}

CodePage codePageOf(const std::vector<Record>& globals) {
    if (const Record* page = firstOf(globals, RecordType::CodePage)) {
        page->require(2);
        return CodePage(page->u16(0), page->offset);
    }
    const Record* country = firstOf(globals, RecordType::Country);
    return CodePage(codePageOfCountry(country && country->payload.size() >= 2 ? country->u16(0) : 0));
}

class WorkbookTranslator {
public:
    explicit WorkbookTranslator(ByteView stream)
        : stream_(stream), globals_(globalsOf(stream)), codePage_(codePageOf(globals_)) {}

    Bytes run() {
        findSheets();
        translateSheets();
        writeGlobals();
        for (const OldSheet& old : sheets_) {
            store32(&out_[old.entry + recordHeaderSize], static_cast<std::uint32_t>(out_.size()));
            out_.insert(out_.end(), old.sheet.bytes.begin(), old.sheet.bytes.end());
        }
        return std::move(out_);
    }

private:
    static bool isWorksheet(const Record& boundSheet) { return boundSheet.u8(5) == 0; }

    void findSheets() {
        std::uint32_t number = 0;
        for (const Record& record : globals_) {
            if (!record.is(RecordType::BoundSheet)) continue;
            record.require(7);
            if (isWorksheet(record)) sheets_.push_back({number, record.u32(0)});
            ++number;
        }
        if (sheets_.empty())
            throw FormatError(Refusal::Damaged, "BoundSheet", globals_.back().offset, "a worksheet", "none");
    }

    /// In the order of the stream, so that sheets that share bytes are found out.
    void translateSheets() {
        std::vector<OldSheet*> order;
        for (OldSheet& sheet : sheets_)
            order.push_back(&sheet);
        std::ranges::stable_sort(order, {}, &OldSheet::position);
        std::uint32_t end = globals_.back().offset;
        for (OldSheet* old : order) {
            if (old->position <= end)
                throw FormatError(Refusal::Damaged, "BoundSheet", old->position,
                                  "a sheet behind offset " + std::to_string(end), "one within another");
            old->sheet = translateSheet(stream_, old->position, codePage_, texts_);
            end = old->sheet.end;
        }
    }

    void writeGlobals() {
        appendBof(out_, globalsSubstream);
        Bytes codePage;
        append16(codePage, utf16);
        appendRecord(out_, RecordType::CodePage, codePage);
        for (const Record& record : globals_)
            takeGlobal(record);
        writeTexts();
        appendRecord(out_, RecordType::Eof, {});
    }

    void takeGlobal(const Record& record) {
        switch (record.type()) {
        case RecordType::BoundSheet:
            if (isWorksheet(record)) putSheet(record);
            return;
        case RecordType::Font:
            return put(record, fontPayload(record, codePage_));
        case RecordType::Format:
            return put(record, numberFormatPayload(record, codePage_));
        case RecordType::Xf:
            return put(record, cellFormatPayload(record));
        case RecordType::Style:
            return put(record, stylePayload(record, codePage_));
        case RecordType::Window1:
            return put(record, window(record));
        default:
            if (isSameInBiff5(record.type()))
                put(record, Bytes(record.payload.begin(), record.payload.end()));
        }
    }

    void put(const Record& record, const Bytes& payload) { appendRecord(out_, record.type(), payload); }

    void putSheet(const Record& record) {
        sheets_[written_++].entry = static_cast<std::uint32_t>(out_.size());
        Bytes payload(record.payload.begin(), record.payload.begin() + 6);
        appendShortText(payload, shortTextAt(record, 6, codePage_).substr(0, longestSheetName));
        put(record, payload);
    }

    /// The active and the leftmost sheet are numbers, which change where sheets are left out.
    Bytes window(const Record& record) const {
        record.require(18);
        Bytes payload(record.payload.begin(), record.payload.begin() + 18);
        for (const std::size_t at : {std::size_t{10}, std::size_t{12}}) {
            const auto sheet = std::ranges::find(sheets_, load16(&payload[at]), &OldSheet::number);
            store16(&payload[at],
                    sheet == sheets_.end() ? 0 : static_cast<std::uint32_t>(sheet - sheets_.begin()));
        }
        store16(&payload[14], 1);
        return payload;
    }

    void writeTexts() {
        std::uint32_t references = 0;
        for (const OldSheet& old : sheets_)
            references += old.sheet.sharedTexts;
        if (references == 0) return;
        StringTableWriter writer(StringTableWriter::countsSize);
        for (std::uint32_t id = 0; id < texts_.size(); ++id)
            writer.add(texts_.text(id));
        const Bytes table = writer.wholeTable(references, texts_.size());
        out_.insert(out_.end(), table.begin(), table.end());
    }

    ByteView stream_;
    std::vector<Record> globals_;
    CodePage codePage_;
    TextPool texts_;
    std::vector<OldSheet> sheets_;
    std::size_t written_ = 0; ///< of sheets_, their BoundSheet records
    Bytes out_;
};

} // namespace

Bytes translateBiff5(ByteView stream) {
    return WorkbookTranslator(stream).run();
}

} // namespace zvonika::xls
