#include "spreadsheet/xls/records/Rk.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <bit>
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

std::vector<Value> allKinds() {
    using Text = std::u16string;
    std::vector<Value> values{{}, true, false, ErrorValue{0x07}, ErrorValue{0x2A}};
    for (const double number : {0.0, -0.0, 1.0, 0.5, 0.01, 0.1, 12.34, 1.0 / 3, 5368709.11, 536870911.0,
                                536870912.0, -536870912.0, -536870913.0, 1e300, DBL_TRUE_MIN, DBL_MAX})
        values.emplace_back(number);
    for (const Text& text : {Text(u"c1"), Text(u"Příliš žluťoučký kůň"), Text(u"latin é ß"), Text(u"𝄞 a 🎵"),
                             Text(), Text(u"řádek\ndruhý"), Text(300, u'ř'), Text(9000, u'x'),
                             Text(32767, u'ž'), Text(1, char16_t(0xD834))})
        values.emplace_back(text);
    return values;
}

/// Tells apart what compares as equal: zero and minus zero.
std::uint64_t bits(const Value& value) {
    const auto* number = std::get_if<double>(&value);
    return number ? std::bit_cast<std::uint64_t>(*number) : 0;
}

TEST(Values, ComeBackFromAFileAndReplaceEachOther) {
    const std::vector<Value> values = allKinds();
    const auto count = static_cast<int>(values.size());
    Workbook book = Workbook::create(u"Píseň");
    // Every file is changed again: each kind of cell becomes each other kind.
    for (int turn = 0; turn < count; turn += 5) {
        for (int i = 0; i < count; ++i)
            book.setValue(0, {i / 4, i % 4}, values[static_cast<std::size_t>((i + turn) % count)]);
        const Bytes file = book.save();
        book = Workbook::open(file);
        for (int i = 0; i < count; ++i) {
            const Value& expected = values[static_cast<std::size_t>((i + turn) % count)];
            const Value read = book.value(0, {i / 4, i % 4});
            EXPECT_TRUE(read == expected && bits(read) == bits(expected)) << turn << " " << i;
        }
        EXPECT_EQ(offsetFaults(file), "");
    }
}

TEST(Values, OfNumbersInFourBytesAreRead) {
    const std::pair<std::uint32_t, double> table[] = {
        {0x00000000, 0.0},       {0x3FF00000, 1.0},        {0x3FF00001, 0.01}, {0x00000006, 1.0},
        {0x004B5646, 1234321.0}, {0x004B5647, 12343.21},   {0xFFFFFFFE, -1.0}, {0x80000002, -536870912.0},
        {0x7FFFFFFE, 536870911}, {0xC05EDCCC, -123.44995}, {0x80000000, -0.0},
    };
    for (const auto& [rk, number] : table)
        EXPECT_NEAR(decodeRk(rk), number, 1e-5) << std::hex << rk;
    EXPECT_EQ(decodeRk(0x0000008F), 0.35) << "hundredths, as they are typed";
}

TEST(Values, OfOtherProgramsAreUnderstood) {
    using Text = std::u16string;
    const std::vector<Value> song[] = {
        {Text(u"Koč"), Text(u"c1"), 1.0, 0.5, true},  {Text(u"ka"), Text(u"d1"), 2.0, -1.25, false},
        {Text(u"le"), Text(u"e1"), 3.0, 1e300, true}, {Text(u"ze"), Text(u"f1"), 4.0, 1234567.891, false},
        {Text(u"𝄞 dí"), Text(u"g1"), 5.0, 0.1, true}, {Text(u"rou,"), Text(u"g1"), 6.0, -536870912.0, true}};
    for (const std::string name : {"xlwt", "libreoffice", "gnumeric", "sheetjs", "biff5"}) {
        const Workbook book = Workbook::open(readFixture(name + ".xls"));
        ASSERT_EQ(book.sheetCount(), 2) << name << ": a chart sheet is none of them";
        EXPECT_EQ(book.sheetName(0), u"Píseň") << name;
        EXPECT_EQ(book.sheetName(1), u"Druhý") << name;
        for (int row = 0; row < 6; ++row)
            for (int column = 0; column < 5; ++column) {
                Value expected = song[row][static_cast<std::size_t>(column)];
                // Gnumeric 1.12 and the old format have no clef, which lies above U+FFFF.
                if (row == 4 && column == 0 && (name == "gnumeric" || name == "biff5")) continue;
                // Converted from a foreign source, LibreOffice keeps no truth values: numbers in a format.
                if (column == 4 && name == "libreoffice") expected = double(std::get<bool>(expected));
                EXPECT_EQ(book.value(0, {row, column}), expected) << name << " " << row << " " << column;
            }
    }
}

TEST(Values, OfLargestSheetCorners) {
    Workbook book = Workbook::create(u"List");
    const CellRef corners[] = {{0, 0}, {0, 255}, {65535, 0}, {65535, 255}, {31, 0}, {32, 0}};
    for (const CellRef& cell : corners)
        book.setValue(0, cell, double(cell.row + cell.column));
    const Workbook read = Workbook::open(book.save());
    for (const CellRef& cell : corners)
        EXPECT_EQ(read.value(0, cell), Value(double(cell.row + cell.column)));
    EXPECT_EQ(read.usedRows(0), 65536);
    EXPECT_EQ(read.usedColumns(0), 256);
}

TEST(Values, ThatAreNoNumberBecomeAnError) {
    Workbook book = Workbook::create(u"List");
    book.setValue(0, {0, 0}, std::nan(""));
    book.setValue(0, {0, 1}, std::numeric_limits<double>::infinity());
    EXPECT_EQ(book.value(0, {0, 0}), Value(ErrorValue{0x24}));
    EXPECT_EQ(Workbook::open(book.save()).value(0, {0, 1}), Value(ErrorValue{0x24}));
}

TEST(Values, OutOfRangeAreRefused) {
    Workbook book = Workbook::create(u"List");
    EXPECT_THROW(book.setValue(0, {0, 0}, std::u16string(32768, u'a')), std::invalid_argument);
    EXPECT_THROW(book.setValue(0, {65536, 0}, 1.0), std::out_of_range);
    EXPECT_THROW(book.value(0, {0, 256}), std::out_of_range);
    EXPECT_THROW(book.value(0, {-1, 0}), std::out_of_range);
    EXPECT_THROW(book.value(1, {0, 0}), std::out_of_range);
}

TEST(UsedRange, FollowsValuesSetAndEmptied) {
    Workbook book = Workbook::create(u"List");
    EXPECT_EQ(book.usedRows(0), 0);
    EXPECT_EQ(book.usedColumns(0), 0);
    book.setValue(0, {4, 2}, 1.0);
    book.setValue(0, {9, 1}, 1.0);
    EXPECT_EQ(book.usedRows(0), 10);
    EXPECT_EQ(book.usedColumns(0), 3);
    book = Workbook::open(book.save());
    book.setValue(0, {9, 1}, {});
    EXPECT_EQ(book.usedRows(0), 5);
    book.setValue(0, {4, 2}, {});
    EXPECT_EQ(book.usedColumns(0), 0);
    EXPECT_EQ(Workbook::open(book.save()).usedRows(0), 0)
        << "a cell that keeps only its format holds no value";
}

TEST(Modification, IsToldAndTakenBack) {
    EXPECT_TRUE(Workbook::create(u"List").isModified());
    Workbook book = Workbook::create(u"List");
    book.setValue(0, {0, 0}, std::u16string(u"c1"));
    const Bytes file = book.save();
    book = Workbook::open(file);
    EXPECT_FALSE(book.isModified());
    book.setValue(0, {0, 0}, std::u16string(u"c1"));
    EXPECT_FALSE(book.isModified()) << "the same value is no change";
    book.setValue(0, {0, 0}, 2.0);
    book.setValue(0, {1, 0}, 2.0);
    EXPECT_TRUE(book.isModified());
    EXPECT_NE(book.save(), file);
    book.setValue(0, {0, 0}, std::u16string(u"c1"));
    book.setValue(0, {1, 0}, {});
    EXPECT_FALSE(book.isModified());
    EXPECT_EQ(book.save(), file);
}

} // namespace
