#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

TEST(SheetName, RoundTripsInBothWidths) {
    for (const std::u16string& name : {std::u16string(u"List1"), std::u16string(u"Příliš žluťoučký kůň 𝄞"),
                                       std::u16string(31, u'ř'), std::u16string(u"é")}) {
        Workbook book = Workbook::create(name);
        EXPECT_EQ(Workbook::open(book.save()).sheetName(0), name);
        Workbook other = Workbook::open(Workbook::create(u"x").save());
        other.renameSheet(0, name);
        EXPECT_EQ(other.sheetName(0), name);
        EXPECT_EQ(Workbook::open(other.save()).sheetName(0), name);
        EXPECT_EQ(offsetFaults(other.save()), "");
    }
}

TEST(SheetName, IsRefusedWhenASpreadsheetWould) {
    Workbook book = Workbook::open(readFixture("xlwt.xls"));
    for (const std::u16string& name :
         {std::u16string(), std::u16string(32, u'a'), std::u16string(u"a:b"), std::u16string(u"a\\b"),
          std::u16string(u"a/b"), std::u16string(u"a?"), std::u16string(u"*"), std::u16string(u"[a"),
          std::u16string(u"a]"), std::u16string(u"'a"), std::u16string(u"a'"), book.sheetName(1)})
        EXPECT_THROW(book.renameSheet(0, name), std::invalid_argument);
    EXPECT_THROW(Workbook::create(u"a/b"), std::invalid_argument);
    book.renameSheet(1, u"Sheet");
    EXPECT_THROW(book.renameSheet(0, u"sHEET"), std::invalid_argument);
    book.renameSheet(1, u"SHEET"); // its own name in another case
    EXPECT_EQ(book.sheetName(1), u"SHEET");
    book.renameSheet(1, u"d'un"); // an apostrophe inside is one like any
}

TEST(ColumnWidth, SplitsTheRecordThatCoversMoreColumns) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    const auto columns = std::ranges::find(all, 0x0055, &Rec::id) + 1;
    all.insert(columns, {0x007D, le(2, {2, 6, 1000, 20, 0x0001, 0})}); // hidden columns C to G in format 20
    Workbook book = Workbook::open(fileAround(bytesOf(all)));
    EXPECT_EQ(book.columnWidth(0, 1), 8 * 256);
    EXPECT_EQ(book.columnWidth(0, 4), 1000);
    book.setColumnWidth(0, 4, 5000);
    book.setColumnWidth(0, 0, 7000);
    book.setColumnWidth(0, 9, 300);
    const Bytes file = book.save();
    std::vector<Bytes> written;
    for (const Rec& record : recordsOf(file))
        if (record.id == 0x007D) written.push_back(record.data);
    const std::vector<Bytes> expected{le(2, {0, 0, 7000, 15, 2, 0}), le(2, {2, 3, 1000, 20, 1, 0}),
                                      le(2, {4, 4, 5000, 20, 2, 0}), le(2, {5, 6, 1000, 20, 1, 0}),
                                      le(2, {9, 9, 300, 15, 2, 0})};
    EXPECT_EQ(written, expected);
    const Workbook read = Workbook::open(file);
    EXPECT_EQ(read.columnWidth(0, 0), 7000);
    EXPECT_EQ(read.columnWidth(0, 4), 5000);
    EXPECT_EQ(read.columnWidth(0, 6), 1000);
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
    book = Workbook::open(fileAround(bytesOf(all)));
    EXPECT_EQ(book.activeCell(0), (CellRef{7, 3}));
    book.setActiveCell(0, {8, 4});
    const std::vector<Rec> written = recordsOf(book.save());
    EXPECT_EQ(*find(written, 0x001D), upper) << "the other pane keeps its own";
    EXPECT_EQ(Workbook::open(book.save()).activeCell(0), (CellRef{8, 4}));
}

TEST(ActiveCell, IsAddedWhereTheSheetHasNone) {
    Workbook book = Workbook::open(readFixture("sheetjs.xls"));
    ASSERT_EQ(find(recordsOf(book.save()), 0x001D), nullptr);
    EXPECT_EQ(book.activeCell(0), (CellRef{0, 0}));
    book.setActiveCell(0, {5, 1});
    EXPECT_EQ(Workbook::open(book.save()).activeCell(0), (CellRef{5, 1}));
    EXPECT_EQ(Workbook::open(book.save()).activeCell(1), (CellRef{0, 0}));
}

TEST(ActiveSheet, IsTheOnlySelectedOne) {
    for (const char* name : {"xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls"}) {
        Workbook book = Workbook::open(readFixture(name));
        EXPECT_EQ(book.activeSheet(), 0) << name;
        book.setActiveSheet(1);
        const Bytes file = book.save();
        EXPECT_EQ(Workbook::open(file).activeSheet(), 1) << name;
        std::vector<int> selected;
        for (const Rec& record : recordsOf(file))
            if (record.id == 0x023E) selected.push_back(record.u16(0) & 0x0600);
        EXPECT_EQ(selected, (std::vector<int>{0, 0x0600})) << name;
        book.setActiveSheet(0);
        EXPECT_FALSE(book.isModified()) << name;
    }
}

} // namespace
