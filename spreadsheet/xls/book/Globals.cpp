#include "spreadsheet/xls/book/Globals.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Record.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

namespace zvonika::xls {

namespace {

SheetEntry readSheetEntry(ByteView stream, const Record& record) {
    record.require(8);
    SheetEntry entry;
    entry.record = record.offset;
    entry.position = record.u32(0);
    entry.hidden = (record.u8(4) & 3) != 0;
    entry.type = record.u8(5);
    entry.name = readShortText(stream, record.offset + 4 + 6, record.end());
    return entry;
}

/// Collects the globals record by record.
class GlobalsReader {
public:
    explicit GlobalsReader(ByteView stream) : stream_(stream) {}

    Globals read() {
        Record record = recordAt(stream_, 0);
        while (globals_.eof == absent) {
            record = recordAt(stream_, record.end());
            take(record);
        }
        return std::move(globals_);
    }

private:
    void take(const Record& record) {
        switch (record.type()) {
        case RecordType::BoundSheet:
            globals_.sheets.push_back(readSheetEntry(stream_, record));
            break;
        case RecordType::Window1:
            takeWindow(record);
            break;
        case RecordType::Xf:
            takeFormat(record);
            break;
        case RecordType::Sst:
            globals_.sst = record.offset;
            break;
        case RecordType::ExtSst:
            globals_.extSst = record.offset;
            break;
        case RecordType::Eof:
            globals_.eof = record.offset;
            break;
        default:
            break;
        }
    }

    void takeWindow(const Record& record) {
        record.require(12);
        if (globals_.window1 == absent) globals_.window1 = record.offset;
    }

    void takeFormat(const Record& record) {
        record.require(6);
        constexpr std::uint16_t styleFlag = 4;
        globals_.formats.add(record.u16(4) & styleFlag);
        globals_.formatsEnd = record.end();
    }

    ByteView stream_;
    Globals globals_;
};

} // namespace

Globals readGlobals(ByteView stream) {
    return GlobalsReader(stream).read();
}

} // namespace zvonika::xls
