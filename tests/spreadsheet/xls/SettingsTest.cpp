#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

TEST(SheetName, RoundTripsInBothWidths) {
    for (const std::u16string& name : {std::u16string(u"List1"), std::u16string(u"Příliš žluťoučký kůň 𝄞"),
                                       std::u16string(31, u'ř'), std::u16string(u"é")}) {
        EXPECT_EQ(Workbook::open(Workbook::create(name).save()).sheetName(0), name);
        Workbook book = Workbook::open(readFixture("xlwt.xls"));
        book.renameSheet(0, name);
        EXPECT_EQ(Workbook::open(book.save()).sheetName(0), name);
        EXPECT_EQ(offsetFaults(book.save()), "");
    }
}

TEST(SheetName, OfAHiddenSheetLeavesItHidden) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    std::ranges::find(all, 0x0085, &Rec::id)->data[4] = 1;
    Workbook book = Workbook::open(fileAround(bytesOf(all)));
    book.renameSheet(0, u"Jiný");
    EXPECT_EQ(find(recordsOf(book.save()), 0x0085)->data[4], 1);
}

TEST(SheetName, IsRefusedWhenASpreadsheetWould) {
    Workbook book = Workbook::open(readFixture("xlwt.xls"));
    for (const std::u16string& name :
         {std::u16string(), std::u16string(32, u'a'), std::u16string(u"a:b"), std::u16string(u"a\\b"),
          std::u16string(u"a/b"), std::u16string(u"a?"), std::u16string(u"*"), std::u16string(u"[a"),
          std::u16string(u"a]"), std::u16string(u"'a"), std::u16string(u"a'"), book.sheetName(1)})
        EXPECT_THROW(book.renameSheet(0, name), std::invalid_argument);
    EXPECT_THROW(Workbook::create(u"a/b"), std::invalid_argument);
}

TEST(ColumnWidth, SplitsTheRecordThatCoversMoreColumns) {
    using Records = std::vector<Bytes>;
    // First, last, width, format, flags: 1 hidden, 2 set by the user.
    const auto info = [](std::uint64_t first, std::uint64_t last, std::uint64_t width, std::uint64_t format,
                         std::uint64_t flags) {
        return le(2, {first, last, width, format, flags, 0});
    };
    const struct {
        const char* what;
        Records before;
        std::vector<std::pair<int, int>> widths;
        Records after;
    } table[] = {
        {"one in its midst",
         {info(2, 4, 1000, 20, 1)},
         {{3, 5000}},
         {info(2, 2, 1000, 20, 1), info(3, 3, 5000, 20, 2), info(4, 4, 1000, 20, 1)}},
        {"its first", {info(2, 4, 1000, 20, 2)}, {{2, 0}}, {info(2, 2, 0, 20, 3), info(3, 4, 1000, 20, 2)}},
        {"its last", {info(2, 4, 1000, 20, 0)}, {{4, 7}}, {info(2, 3, 1000, 20, 0), info(4, 4, 7, 20, 2)}},
        {"neighbours",
         {info(2, 6, 1000, 20, 0)},
         {{4, 1}, {3, 2}},
         {info(2, 2, 1000, 20, 0), info(3, 3, 2, 20, 2), info(4, 4, 1, 20, 2), info(5, 6, 1000, 20, 0)}},
        {"of two records",
         {info(0, 1, 500, 16, 2), info(3, 5, 600, 17, 0)},
         {{0, 1}, {4, 2}, {2, 3}, {9, 4}},
         {info(0, 0, 1, 16, 2), info(1, 1, 500, 16, 2), info(2, 2, 3, 15, 2), info(3, 3, 600, 17, 0),
          info(4, 4, 2, 17, 2), info(5, 5, 600, 17, 0), info(9, 9, 4, 15, 2)}},
    };
    for (const auto& [what, before, widths, after] : table) {
        SCOPED_TRACE(what);
        std::vector<Rec> all = recordsOf(fileWithTable({numberCell(0, 0, 1.5)}));
        auto place = std::ranges::find(all, 0x0055, &Rec::id) + 1;
        for (const Bytes& data : before)
            place = all.insert(place, {0x007D, data}) + 1;
        Workbook book = Workbook::open(fileAround(bytesOf(all)));
        EXPECT_EQ(book.columnWidth(0, 8), 8 * 256);
        for (const auto& [column, width] : widths)
            book.setColumnWidth(0, column, width);
        const Bytes file = book.save();
        Records written;
        for (const Rec& record : recordsOf(file))
            if (record.id == 0x007D) written.push_back(record.data);
        EXPECT_EQ(written, after);
        EXPECT_EQ(offsetFaults(file), "");
        for (int column = 0; column < 12; ++column)
            EXPECT_EQ(Workbook::open(file).columnWidth(0, column), book.columnWidth(0, column)) << column;
    }
}

TEST(ActiveCell, IsTheCursorOfTheActivePane) {
    Workbook book = Workbook::create(u"List");
    EXPECT_EQ(book.activeCell(0), (CellRef{0, 0}));
    book.setActiveCell(0, {65535, 255});
    EXPECT_EQ(Workbook::open(book.save()).activeCell(0), (CellRef{65535, 255}));

    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    const auto selection = std::ranges::find(all, 0x001D, &Rec::id);
    const Rec pane{0x0041, le(2, {0, 1, 1, 0}) + Bytes{2, 0}};
    const Rec upper{0x001D, Bytes{3} + le(2, {0, 1, 0, 1, 0, 0}) + Bytes{1, 1}};
    const Rec lower{0x001D, Bytes{2} + le(2, {7, 3, 0, 1, 7, 7}) + Bytes{3, 3}};
    *selection = upper;
    all.insert(all.insert(selection, pane) + 2, lower);
    const Bytes moved = Bytes{2} + le(2, {8, 4, 0, 1, 8, 8}) + Bytes{4, 4};
    book = Workbook::open(fileAround(bytesOf(all)));
    EXPECT_EQ(book.activeCell(0), (CellRef{7, 3}));
    book.setActiveCell(0, {8, 4});
    const std::vector<Rec> written = recordsOf(book.save());
    EXPECT_EQ(*find(written, 0x001D), upper) << "the other pane keeps its own";
    EXPECT_EQ((find(written, 0x001D) + 1)->data, moved);
    std::erase_if(all, [](const Rec& record) { return record.id == 0x001D; });
    all.insert(std::ranges::find(all, 0x0041, &Rec::id), {0x00A0, le(2, {3, 4})}); // zoomed
    book = Workbook::open(fileAround(bytesOf(all)));
    book.setActiveCell(0, {8, 4});
    const std::vector<Rec> added = recordsOf(book.save());
    EXPECT_EQ((find(added, 0x0041) + 1)->data, moved);
    EXPECT_EQ(Workbook::open(book.save()).activeCell(0), (CellRef{8, 4}));
}

TEST(ActiveSheet, IsTheOnlySelectedOne) {
    for (const char* name : {"xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls"}) {
        Workbook book = Workbook::open(readFixture(name));
        EXPECT_EQ(book.activeSheet(), 0) << name;
        book.setActiveSheet(1);
        const Bytes file = book.save();
        EXPECT_EQ(Workbook::open(file).activeSheet(), 1) << name;
        const auto windows = [](const Bytes& bytes) {
            std::vector<int> flags;
            for (const Rec& record : recordsOf(bytes))
                if (record.id == 0x023E) flags.push_back(record.u16(0));
            return flags;
        };
        const std::vector<int> before = windows(readFixture(name));
        EXPECT_EQ(windows(file), (std::vector<int>{before[0] & ~0x0600, before[1] | 0x0600})) << name;
        book.setActiveSheet(0);
        EXPECT_FALSE(book.isModified()) << name;
    }
}

} // namespace
