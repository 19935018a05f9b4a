#include "spreadsheet/xls/biff5/CodePage.h"
#include "spreadsheet/xls/biff5/FormulaTokens.h"
#include "spreadsheet/xls/container/CompoundFile.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

std::u16string text(const Value& value) {
    const auto* text = std::get_if<std::u16string>(&value);
    return text ? *text : u"no text";
}

TEST(Biff5, IsReadWithItsCodePage) {
    const Bytes file = readFixture("biff5.xls");
    Workbook book = Workbook::open(file);
    EXPECT_TRUE(book.isOldFormat());
    EXPECT_FALSE(book.isModified());
    EXPECT_EQ(book.activeSheet(), 1) << "the third sheet of the file";
    EXPECT_EQ(text(book.value(0, {13, 0})), u"netučně") << "with formats of its parts";
    EXPECT_EQ(book.value(0, {14, 1}), Value(8.0));
    EXPECT_EQ(book.usedRows(0), 15) << "a run of empty cells is no value";
    EXPECT_EQ(book.value(0, {9, 0}), Value(21.0));
    EXPECT_EQ(text(book.value(0, {9, 1})), u"Kočř");
    for (const int column : {0, 1, 2})
        EXPECT_TRUE(book.isFormula(0, {9, column})) << column;
    EXPECT_FALSE(book.isFormula(0, {9, 3})) << "names are not kept: its result is";
    EXPECT_EQ(book.value(0, {9, 3}), Value(5.0));
    EXPECT_EQ(book.columnWidth(0, 0), 6000);
    EXPECT_EQ(book.activeCell(0), (CellRef{4, 1}));
    EXPECT_EQ(book.save(), file) << "what is not changed is not converted either";
}

TEST(Biff5, IsSavedAsBiff8) {
    const CompoundFile old(readFixture("biff5.xls"));
    Workbook book = Workbook::open(old.bytes());
    book.setValue(0, {0, 0}, std::u16string(u"𝄞 Žluť"));
    const Bytes file = book.save();
    const CompoundFile container(file);
    EXPECT_TRUE(container.findStream("Workbook"));
    EXPECT_FALSE(container.findStream("Book"));
    const Workbook again = Workbook::open(file);
    EXPECT_FALSE(again.isOldFormat());
    for (int sheet = 0; sheet < 2; ++sheet)
        for (int row = 0; row < 20; ++row)
            for (int column = 0; column < 8; ++column) {
                EXPECT_EQ(again.value(sheet, {row, column}), book.value(sheet, {row, column}));
                EXPECT_EQ(again.isFormula(sheet, {row, column}), book.isFormula(sheet, {row, column}));
            }
    const std::vector<Rec> all = recordsOf(file);
    EXPECT_EQ(find(all, 0x0809)->u16(0), 0x0600);
    EXPECT_EQ(find(all, 0x0042)->u16(0), 1200);
    const auto format = std::ranges::find(all, 0x041E, &Rec::id);
    EXPECT_EQ(format->data,
              le(2, {164, 9}) + Bytes{1} + le(2, {'0', '.', '0', '0', '"', ' ', 'K', 0x010D, '"'}));
}

TEST(Biff5, KeepsFormatsOfCells) {
    Workbook book = Workbook::open(readFixture("biff5.xls"));
    book.setValue(0, {3, 7}, 1.0);
    book.setValue(0, {15, 0}, 1.0);
    const std::vector<Rec> all = recordsOf(book.save());
    std::vector<Rec> formats;
    std::ranges::copy_if(all, std::back_inserter(formats),
                         [](const Rec& record) { return record.id == 0x00E0; });
    ASSERT_EQ(formats.size(), 17U);
    // Bold font, format 164; bottom aligned, not rotated; thin left border in colour 12, thick one below in
    // 10; solid pattern, colours 13 and 65.
    const Bytes expected = le(2, {5, 164, 0x0001}) + Bytes{0x20, 0, 0, 0xFC} +
                           le(4, {0x1 | 0x5 << 12 | 12 << 16, 10 << 7 | 1 << 26}) + le(2, {13 | 65 << 7});
    EXPECT_EQ(formats.back().data, expected);
    const auto style = std::ranges::find_if(
        all, [](const Rec& record) { return record.id == 0x0293 && !(record.u16(0) & 0x8000); });
    EXPECT_EQ(style->data, le(2, {0x0010, 5}) + Bytes{1} + le(2, {'N', 0xE1, 'p', 0x011B, 'v'}));
    const auto cell = std::ranges::find_if(
        all, [](const Rec& record) { return record.id == 0x027E && record.u16(0) == 15; });
    EXPECT_EQ(cell->u16(4), 16) << "the cell keeps its format";
    EXPECT_EQ(find(all, 0x001B)->data, le(2, {1, 5, 0, 255}));
    EXPECT_EQ(find(all, 0x0014)->data,
              le(2, {7}) + Bytes{1} + le(2, {'&', 'C', 'P', 0xED, 's', 'e', 0x0148}));
}

TEST(CodePage, ReadsCzechInEveryPageThatHasIt) {
    const std::u16string czech = u"příliš žluťoučký kůň";
    const std::pair<int, Bytes> pages[] = {
        {1250, {0x70, 0xF8, 0xED, 0x6C, 0x69, 0x9A, 0x20, 0x9E, 0x6C, 0x75,
                0x9D, 0x6F, 0x75, 0xE8, 0x6B, 0xFD, 0x20, 0x6B, 0xF9, 0xF2}},
        {852, {0x70, 0xFD, 0xA1, 0x6C, 0x69, 0xE7, 0x20, 0xA7, 0x6C, 0x75,
               0x9C, 0x6F, 0x75, 0x9F, 0x6B, 0xEC, 0x20, 0x6B, 0x85, 0xE5}},
        {10029, {0x70, 0xDE, 0x92, 0x6C, 0x69, 0xE4, 0x20, 0xEC, 0x6C, 0x75,
                 0xE9, 0x6F, 0x75, 0x8B, 0x6B, 0xF9, 0x20, 0x6B, 0xF3, 0xCB}}};
    for (const auto& [number, bytes] : pages)
        EXPECT_EQ(CodePage(static_cast<std::uint16_t>(number)).decode(bytes), czech) << number;
    EXPECT_EQ(CodePage(32769).decode(Bytes{0xE9, 0x80}), u"é€");
    EXPECT_EQ(CodePage(codePageOfCountry(420)).decode(Bytes{0xE8}), u"č");
    EXPECT_EQ(CodePage(codePageOfCountry(1)).decode(Bytes{0xE8}), u"è");
    EXPECT_EQ(CodePage(1258).decode(Bytes{0xE3, 0xCC, 0xF5, 0xFD}), u"ă\u0300ơư");
    EXPECT_EQ(CodePage(1255).decode(Bytes{0x80, 0xE0, 0xFA}), u"€\u05D0\u05EA");
    EXPECT_EQ(CodePage(1256).decode(Bytes{0x81, 0xC7, 0xFF}), u"\u067E\u0627\u06D2");
    EXPECT_EQ(CodePage(874).decode(Bytes{0x85, 0xA1, 0xFB}), u"…\u0E01\u0E5B");
    EXPECT_THROW(CodePage(932), FormatError);
}

TEST(FormulaTokens, FollowTheWiderReferences) {
    const CodePage page(1250);
    const Bytes jumpOver{0x19, 0x08};
    const struct {
        const char* what;
        Bytes old;
        std::optional<Bytes> fresh;
    } table[] = {
        {"reference", Bytes{0x44} + le(2, {0xC005}) + Bytes{2}, Bytes{0x44} + le(2, {5, 0xC002})},
        {"row fixed", Bytes{0x24} + le(2, {0x4005}) + Bytes{2}, Bytes{0x24} + le(2, {5, 0x4002})},
        {"area", Bytes{0x25} + le(2, {0xC001, 0x0009}) + Bytes{2, 3}, Bytes{0x25} + le(2, {1, 9, 0xC002, 3})},
        {"whole columns", Bytes{0x25} + le(2, {0x4000, 0x7FFF}) + Bytes{0, 1},
         Bytes{0x25} + le(2, {0, 65535, 0x4000, 0x4001})},
        {"offset up", Bytes{0x2C} + le(2, {0xFFFF}) + Bytes{0}, Bytes{0x2C} + le(2, {0xFFFF, 0xC000})},
        {"offset down", Bytes{0x4D} + le(2, {0x8001, 0xBFFF}) + Bytes{0, 1},
         Bytes{0x4D} + le(2, {1, 0xFFFF, 0x8000, 0x8001})},
        {"text", Bytes{0x17, 2, 0xE8, 'a'}, Bytes{0x17, 2, 1} + le(2, {0x010D, 'a'})},
        {"number, function", Bytes{0x1F} + Bytes(8) + Bytes{0x41} + le(2, {15}),
         Bytes{0x1F} + Bytes(8) + Bytes{0x41} + le(2, {15})},
        {"jumps",
         Bytes{0x19, 2} + le(2, {8}) + Bytes{0x24, 0, 0, 0} + jumpOver + le(2, {3}) + Bytes{0x22, 2, 1, 0},
         Bytes{0x19, 2} + le(2, {9}) + Bytes{0x24, 0, 0, 0, 0} + jumpOver + le(2, {3}) +
             Bytes{0x22, 2, 1, 0}},
        {"jump into a token", Bytes{0x19, 2} + le(2, {2}) + Bytes{0x24, 0, 0, 0}, std::nullopt},
        {"name", Bytes{0x23} + Bytes(14), std::nullopt},
        {"another sheet", Bytes{0x3A} + Bytes(17), std::nullopt},
        {"array constant", Bytes{0x20} + Bytes(7), std::nullopt},
        {"cut off", Bytes{0x24, 0}, std::nullopt},
        {"text cut off", Bytes{0x17, 9, 'a'}, std::nullopt},
    };
    for (const auto& [what, old, fresh] : table)
        EXPECT_EQ(convertTokens(old, page), fresh) << what;
}

TEST(Biff5, AnotherCodePageIsFollowedOrRefused) {
    Bytes file = readFixture("biff5.xls");
    const auto page = std::ranges::search(file, Bytes{0x42, 0, 2, 0} + le(2, {1250})).begin() + 4;
    std::ranges::copy(le(2, {1252}), page);
    EXPECT_EQ(text(Workbook::open(file).value(0, {0, 0})), u"Koè");
    std::ranges::copy(le(2, {932}), page);
    try {
        Workbook::open(file);
        ADD_FAILURE() << "a code page of two bytes a character was read";
    } catch (const FormatError& error) {
        EXPECT_EQ(error.refusal(), Refusal::CodePage);
        EXPECT_EQ(error.found(), "932");
    }
}

TEST(BookStream, TheLaterVersionCountsWhateverItsName) {
    const Bytes biff8 = streamOf(Workbook::create(u"Nová").save());
    const CompoundFile old(readFixture("biff5.xls"));
    const Bytes biff5 = old.readStream(*old.findStream("Book"));
    // A container with two streams: the summary of another program's file becomes the second one.
    const auto twoStreams = [](const char* other, const Bytes& workbook, const Bytes& second) {
        CompoundFile file(readFixture("libreoffice.xls"));
        file = CompoundFile(file.withStream(*file.findStream("Workbook"), workbook));
        const std::uint32_t entry = *file.findStream("\x01"
                                                     "CompObj");
        return file.imageWith(entry, std::make_shared<ByteViewSource>(second), other).bytes();
    };
    EXPECT_EQ(Workbook::open(twoStreams("Book", biff5, biff8)).sheetName(0), u"Nová");
    EXPECT_EQ(Workbook::open(twoStreams("Book", Bytes(5000, 1), biff5)).sheetName(0), u"Píseň");
}

} // namespace
