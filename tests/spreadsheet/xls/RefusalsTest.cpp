#include "spreadsheet/xls/container/CompoundFile.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

Bytes text(const std::string& characters) {
    return Bytes(characters.begin(), characters.end());
}

Bytes withStreamNamed(const char* name) {
    return CompoundFile::withEmptyStream(name).withStream(1, Bytes(5000, 1));
}

/// With this record as the one behind Bof; the `ciphered` behind that are cut to nothing.
Bytes withFirst(std::uint16_t id, const Bytes& data, std::size_t ciphered = 0) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    for (Rec& record : all)
        if (ciphered > 0 && (record.id == 0x0085 || record.id == 0x003D)) record.data.clear(), --ciphered;
    all.insert(all.begin() + 1, {id, data});
    return fileAround(bytesOf(all));
}

Bytes withVersion(std::uint16_t version) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    all.front().data[0] = static_cast<std::uint8_t>(version);
    all.front().data[1] = static_cast<std::uint8_t>(version >> 8);
    return fileAround(bytesOf(all));
}

TEST(Refusals, NameWhatTheFileIs) {
    const struct {
        const char* what;
        Bytes file;
        Refusal refusal;
    } table[] = {
        {"nothing", {}, Refusal::Empty},
        {"xlsx", text("PK\x03\x04......[Content_Types].xml"), Refusal::Xlsx},
        {"xlsx, first part", text("PK\x03\x04......xl/workbook.xml"), Refusal::Xlsx},
        {"ods", text("PK\x03\x04..mimetypeapplication/vnd.oasis.opendocument.spreadsheetPK"),
         Refusal::OpenDocument},
        {"zip", text("PK\x03\x04......song.mp3"), Refusal::OtherFormat},
        {"pdf", text("%PDF-1.4 \x01"), Refusal::OtherFormat},
        {"html", text("\n <HTML><table>"), Refusal::Html},
        {"a bare table", text("<table border=1><tr><td>c1"), Refusal::Html},
        {"web archive", text("MIME-Version: 1.0\r\nContent-Type: multipart/related"), Refusal::Html},
        {"xml 2003",
         text("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<Workbook "
              "xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\">"),
         Refusal::Xml2003},
        {"ods in one file", text("<?xml?><office:document xmlns:office=\"urn:oasis:names:tc:opendocument:\""),
         Refusal::OpenDocument},
        {"other xml", text("<?xml version"), Refusal::OtherFormat},
        {"csv", text("Koč;c1\r\nka;d1\r\n"), Refusal::PlainText},
        {"csv in UTF-16", Bytes{0xFF, 0xFE, 'a', 0, ';', 0, 0x0D, 1}, Refusal::PlainText},
        {"html in UTF-16", Bytes{0xFE, 0xFF, 0, '<', 0, 'h', 0, 't', 0, 'm', 0, 'l'}, Refusal::Html},
        {"rubbish", Bytes{1, 2, 3, 4, 0, 99}, Refusal::NotXls},
        {"zeros", Bytes(3000), Refusal::NotXls},
        {"BIFF2", Bytes{9, 0, 4, 0, 2, 0, 0x10, 0}, Refusal::OldFormat},
        {"BIFF4", Bytes{9, 4, 6, 0, 0, 4, 0x10, 0, 0, 0}, Refusal::OldFormat},
        {"half a signature", Bytes{0xD0, 0xCF, 0x11}, Refusal::Truncated},
        {"half a header", Bytes{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1} + Bytes(292),
         Refusal::Truncated},
        {"Word document", withStreamNamed("WordDocument"), Refusal::OtherFormat},
        {"encrypted xlsx", withStreamNamed("EncryptedPackage"), Refusal::Encrypted},
        {"some container", withStreamNamed("Contents"), Refusal::NotXls},
        {"no Bof", withStreamNamed("Workbook"), Refusal::Damaged},
        {"BIFF4 in a container", withVersion(0x0400), Refusal::OldFormat},
        {"unknown version", withVersion(0x0700), Refusal::Damaged},
        {"password", withFirst(0x002F, Bytes(54, 1)), Refusal::Encrypted},
        {"password, what follows is ciphertext", withFirst(0x002F, Bytes(54, 1), 2), Refusal::Encrypted},
    };
    for (const auto& [what, file, refusal] : table)
        try {
            Workbook::open(file);
            ADD_FAILURE() << what << " was opened";
        } catch (const FormatError& error) {
            EXPECT_EQ(error.refusal(), refusal) << what << ": " << error.what();
        }
}

TEST(Refusals, ContradictionsInTheWorkbook) {
    const std::vector<Rec> good = recordsOf(fileWithTable({numberCell(0, 0, 1.5)}));
    const auto sheet = std::ranges::find(good, 0x0085, &Rec::id) - good.begin();
    const auto cell = std::ranges::find(good, 0x0203, &Rec::id) - good.begin();
    const auto check = [&](const char* place, auto change) {
        std::vector<Rec> all = good;
        change(all);
        try {
            Workbook::open(fileAround(bytesOf(all)));
            ADD_FAILURE() << place << " was opened";
        } catch (const FormatError& error) {
            EXPECT_EQ(error.place(), place) << error.what();
            EXPECT_EQ(error.refusal(), Refusal::Damaged) << error.what();
        }
    };
    check("BoundSheet", [&](auto& all) { all[std::size_t(sheet)].data[0] ^= 4; });
    check("BoundSheet", [&](auto& all) { all.insert(all.begin() + sheet, all[std::size_t(sheet)]); });
    check("BoundSheet", [&](auto& all) { all[std::size_t(sheet)].data[5] = 2; });
    check("Number", [&](auto& all) { all[std::size_t(cell)].data.pop_back(); });
    check("Number", [&](auto& all) { all[std::size_t(cell)].data[3] = 1; });
    check("LabelSst", [&](auto& all) { all[std::size_t(cell)] = {0x00FD, le(2, {0, 0, 15}) + le(4, {0})}; });
}

} // namespace
