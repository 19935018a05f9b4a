#include "spreadsheet/xls/book/BlankWorkbook.h"

#include "spreadsheet/xls/book/CellFormats.h"
#include "spreadsheet/xls/records/Bof.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace zvonika::xls {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t utf16 = 1200;
constexpr std::uint16_t czechRepublic = 420;
constexpr int fontCount = 4;
constexpr int styleFormats = 15;

void record16(Bytes& out, RecordType type, std::initializer_list<std::uint16_t> values) {
    Bytes payload;
    for (const std::uint16_t value : values)
        append16(payload, value);
    appendRecord(out, type, payload);
}

void writeAccess(Bytes& out) {
    constexpr std::string_view user = "Zvonika";
    Bytes payload(112, ' ');
    store16(payload.data(), static_cast<std::uint32_t>(user.size()));
    payload[2] = 0; // one byte a character
    std::ranges::copy(user, payload.begin() + 3);
    appendRecord(out, RecordType::WriteAccess, payload);
}

void font(Bytes& out) {
    constexpr std::uint8_t eastEuropean = 238;
    Bytes payload;
    constexpr std::uint16_t appearance[] = {200, 0, 0x7FFF, 400, 0};
    for (const std::uint16_t value : appearance) // 10 points, automatic colour, normal weight
        append16(payload, value);
    payload.insert(payload.end(), {0, 0, eastEuropean, 0});
    appendShortText(payload, u"Arial");
    appendRecord(out, RecordType::Font, payload);
}

void format(Bytes& out, bool isStyle, std::uint8_t ownAttributes) {
    constexpr std::uint16_t lockedStyle = 0xFFF5;
    constexpr std::uint16_t lockedCell = 0x0001;
    Bytes payload;
    append16(payload, 0);
    append16(payload, 0);
    append16(payload, isStyle ? lockedStyle : lockedCell);
    payload.insert(payload.end(), {0x20, 0, 0, ownAttributes});
    append32(payload, 0);
    append32(payload, 0);
    append16(payload, 0x20C0);
    appendRecord(out, RecordType::Xf, payload);
}

void formats(Bytes& out) {
    format(out, true, 0);
    for (int i = 1; i < styleFormats; ++i)
        format(out, true, 0xF4);
    appendPlainCellFormat(out);
    appendRecord(out, RecordType::Style, Bytes{0x00, 0x80, 0x00, 0xFF}); // "Normal"
}

void beginGlobals(Bytes& out) {
    appendBof(out, globalsSubstream);
    writeAccess(out);
    record16(out, RecordType::CodePage, {utf16});
    record16(out, RecordType::Dsf, {0});
    for (const RecordType type : {RecordType::WindowProtect, RecordType::Protect, RecordType::Password,
                                  RecordType::Backup, RecordType::HideObj})
        record16(out, type, {0});
    record16(out, RecordType::Window1, {0, 0, 0x4000, 0x2500, 0x0038, 0, 0, 1, 0x0258});
    record16(out, RecordType::Date1904, {0});
    record16(out, RecordType::Precision, {1});
    record16(out, RecordType::RefreshAll, {0});
    record16(out, RecordType::BookBool, {0});
    for (int i = 0; i < fontCount; ++i)
        font(out);
    formats(out);
    record16(out, RecordType::UseSelFs, {0});
}

/// Returns the offset of the record, whose sheet position is still to be filled in.
std::size_t boundSheet(Bytes& out, const std::u16string& name) {
    const std::size_t offset = out.size();
    Bytes payload(6);
    appendShortText(payload, name);
    appendRecord(out, RecordType::BoundSheet, payload);
    return offset;
}

void endGlobals(Bytes& out) {
    record16(out, RecordType::Country, {czechRepublic, czechRepublic});
    record16(out, RecordType::Sst, {0, 0, 0, 0});
    record16(out, RecordType::ExtSst, {8});
    appendRecord(out, RecordType::Eof, {});
}

void printSettings(Bytes& out) {
    record16(out, RecordType::PrintHeaders, {0});
    record16(out, RecordType::PrintGridlines, {0});
    record16(out, RecordType::GridSet, {1});
    record16(out, RecordType::Guts, {0, 0, 0, 0});
    record16(out, RecordType::DefaultRowHeight, {0, 255});
    record16(out, RecordType::WsBool, {0x04C1});
    appendRecord(out, RecordType::Header, {});
    appendRecord(out, RecordType::Footer, {});
    record16(out, RecordType::HCenter, {0});
    record16(out, RecordType::VCenter, {0});
    constexpr std::uint16_t halfInch = 0x3FE0; // the highest 16 bits of 0.5 as a double
    record16(out, RecordType::Setup,
             {9, 100, 1, 1, 1, 0x0006, 600, 600, 0, 0, 0, halfInch, 0, 0, 0, halfInch, 1});
}

void sheet(Bytes& out) {
    appendBof(out, worksheetSubstream);
    const std::size_t index = out.size();
    record16(out, RecordType::Index, {0, 0, 0, 0, 0, 0, 0, 0});
    record16(out, RecordType::CalcMode, {1});
    record16(out, RecordType::CalcCount, {100});
    record16(out, RecordType::RefMode, {1});
    record16(out, RecordType::Iteration, {0});
    record16(out, RecordType::Delta, {0xA9FC, 0xD2F1, 0x624D, 0x3F50}); // 0.001
    record16(out, RecordType::SaveRecalc, {1});
    printSettings(out);
    store32(&out[index + recordHeaderSize + 12], static_cast<std::uint32_t>(out.size()));
    record16(out, RecordType::DefColWidth, {8});
    record16(out, RecordType::Dimensions, {0, 0, 0, 0, 0, 0, 0});
    record16(out, RecordType::Window2, {0x06B6, 0, 0, 0x0040, 0, 0, 0, 0, 0});
    appendRecord(out, RecordType::Selection, Bytes{3, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0});
    appendRecord(out, RecordType::Eof, {});
}

} // namespace

void appendPlainCellFormat(Bytes& out) {
    format(out, false, 0);
}

std::vector<std::uint8_t> blankWorkbookStream(const std::u16string& sheetName) {
    Bytes out;
    beginGlobals(out);
    const std::size_t entry = boundSheet(out, sheetName);
    endGlobals(out);
    store32(&out[entry + recordHeaderSize], static_cast<std::uint32_t>(out.size()));
    sheet(out);
    return out;
}

} // namespace zvonika::xls
