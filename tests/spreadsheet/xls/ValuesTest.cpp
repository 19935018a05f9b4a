#include "tests/spreadsheet/xls/XlsFiles.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

const std::vector<Value>& allKinds() {
    static const std::vector<Value> values{0.0,
                                           -0.0,
                                           1.0,
                                           -1.0,
                                           0.5,
                                           0.1,
                                           12.34,
                                           1.0 / 3,
                                           536870911.0,
                                           536870912.0,
                                           -536870913.0,
                                           1e300,
                                           -1e300,
                                           std::numeric_limits<double>::denorm_min(),
                                           std::numeric_limits<double>::max(),
                                           true,
                                           false,
                                           ErrorValue{0x07},
                                           ErrorValue{0x2A},
                                           std::u16string(u"c1"),
                                           std::u16string(u"Příliš žluťoučký kůň"),
                                           std::u16string(u"latin é ß"),
                                           std::u16string(u"𝄞 a 🎵"),
                                           std::u16string(),
                                           std::u16string(u"řádek\ndruhý"),
                                           std::u16string(300, u'ř'),
                                           std::u16string(9000, u'x'),
                                           std::u16string(9000, u'č'),
                                           std::u16string(32767, u'ž'),
                                           std::u16string(1, char16_t(0xD834))};
    return values;
}

std::string bits(const Value& value) {
    if (const auto* number = std::get_if<double>(&value))
        return "number " + std::to_string(std::bit_cast<std::uint64_t>(*number));
    if (const auto* text = std::get_if<std::u16string>(&value))
        return "text of " + std::to_string(text->size());
    return "kind " + std::to_string(value.index());
}

void expectSame(const Value& a, const Value& b, const char* when) {
    EXPECT_EQ(a, b) << when << ": " << bits(a) << " and " << bits(b);
    EXPECT_EQ(bits(a), bits(b)) << when;
}

TEST(Values, ComeBackFromAFile) {
    const auto& values = allKinds();
    Workbook book = Workbook::create(u"Píseň");
    for (std::size_t i = 0; i < values.size(); ++i)
        book.setValue(0, {static_cast<int>(i * 7), static_cast<int>(i)}, values[i]);
    const Workbook read = Workbook::open(book.save());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const CellRef cell{static_cast<int>(i * 7), static_cast<int>(i)};
        expectSame(book.value(0, cell), values[i], "before saving");
        expectSame(read.value(0, cell), values[i], "after saving");
    }
    EXPECT_EQ(offsetFaults(book.save()), "");
}

TEST(Values, ReplaceEachOther) {
    const auto& values = allKinds();
    const auto count = static_cast<int>(values.size());
    Workbook book = Workbook::create(u"Píseň");
    for (int i = 0; i < count; ++i)
        book.setValue(0, {i / 4, i % 4}, values[static_cast<std::size_t>(i)]);
    // Every file is changed again: each kind of cell becomes each other kind.
    for (int turn = 1; turn < count; turn += 5) {
        book = Workbook::open(book.save());
        for (int i = 0; i < count; ++i)
            book.setValue(0, {i / 4, i % 4}, values[static_cast<std::size_t>((i + turn) % count)]);
        const Bytes file = book.save();
        const Workbook read = Workbook::open(file);
        for (int i = 0; i < count; ++i)
            expectSame(read.value(0, {i / 4, i % 4}), values[static_cast<std::size_t>((i + turn) % count)],
                       "replaced");
        EXPECT_EQ(offsetFaults(file), "");
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
