#include "spreadsheet/xls/book/Version.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Record.h"

#include <algorithm>
#include <cstdio>

namespace zvonika::xls {

namespace {

constexpr std::uint16_t biff5 = 0x0500;
constexpr std::uint16_t biff8 = 0x0600;
constexpr std::uint16_t workbookGlobals = 0x0005;

std::string hex(std::uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%04X", static_cast<unsigned>(value));
    return text;
}

[[noreturn]] void refuse(Refusal refusal, const char* expected, std::string found) {
    throw FormatError(refusal, "Bof", 0, expected, std::move(found));
}

/// What follows a FilePass record is ciphertext, only record headers are not.
void refuseEncryption(ByteView stream) {
    for (std::size_t at = 0; at + recordHeaderSize <= stream.size();) {
        const std::uint16_t id = load16(&stream[at]);
        if (id == static_cast<std::uint16_t>(RecordType::FilePass))
            throw FormatError(Refusal::Encrypted, "FilePass", at, "readable records", "encryption");
        if (id == static_cast<std::uint16_t>(RecordType::Eof)) return;
        at += recordHeaderSize + load16(&stream[at + 2]);
    }
}

} // namespace

bool beginsBiff8(ByteView stream) {
    return isRecordAt(stream, 0, RecordType::Bof) && stream.size() >= 6 && load16(&stream[4]) == biff8;
}

Version readVersion(ByteView stream) {
    const Record bof = recordAt(stream, 0);
    const std::uint16_t oldBof[] = {0x0009, 0x0209, 0x0409};
    if (std::ranges::find(oldBof, bof.id) != std::end(oldBof))
        refuse(Refusal::OldFormat, "BIFF5 or BIFF8", "BIFF2 to BIFF4");
    if (!bof.is(RecordType::Bof)) refuse(Refusal::Damaged, "Bof", recordName(bof.id));
    bof.require(4);
    const std::uint16_t version = bof.u16(0);
    if (version != biff5 && version != biff8)
        refuse(version < biff8 ? Refusal::OldFormat : Refusal::Damaged, "version 0x0500 or 0x0600",
               hex(version));
    if (bof.u16(2) != workbookGlobals)
        refuse(Refusal::Damaged, "workbook globals", "substream " + hex(bof.u16(2)));
    refuseEncryption(stream);
    return version == biff8 ? Version::Biff8 : Version::Biff5;
}

} // namespace zvonika::xls
