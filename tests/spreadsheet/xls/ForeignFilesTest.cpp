#include "tests/spreadsheet/xls/XlsFiles.h"

#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

/// What becomes of them when they are changed is asked by the corpus test.
class ForeignFiles : public testing::TestWithParam<const char*> {
protected:
    Workbook book = Workbook::open(readFixture(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Writers, ForeignFiles,
                         testing::Values("xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls"),
                         [](const auto& info) {
                             return std::string(info.param).substr(0, std::string(info.param).find('.'));
                         });

TEST_P(ForeignFiles, AreUnderstood) {
    ASSERT_EQ(book.sheetCount(), 2);
    EXPECT_EQ(book.sheetName(0), u"Píseň");
    EXPECT_EQ(book.sheetName(1), u"Druhý");
    EXPECT_EQ(book.value(1, {0, 0}), Value(std::u16string(u"druhý list")));
    const std::u16string syllables[] = {u"Koč", u"ka", u"le", u"ze", u"𝄞 dí", u"rou,"};
    const std::u16string tones[] = {u"c1", u"d1", u"e1", u"f1", u"g1", u"g1"};
    const bool truths[] = {true, false, true, false, true, true};
    const double numbers[] = {0.5, -1.25, 1e300, 1234567.891, 0.1, -536870912};
    for (int row = 0; row < 6; ++row) {
        const auto i = static_cast<std::size_t>(row);
        // Gnumeric 1.12 writes the clef, which lies above U+FFFF, as another character.
        if (GetParam() != std::string("gnumeric.xls") || row != 4) {
            EXPECT_EQ(book.value(0, {row, 0}), Value(syllables[i]));
        }
        EXPECT_EQ(book.value(0, {row, 1}), Value(tones[i]));
        EXPECT_EQ(book.value(0, {row, 2}), Value(double(row + 1)));
        EXPECT_EQ(book.value(0, {row, 3}), Value(numbers[i]));
        // Converted from a foreign source, LibreOffice keeps no truth values: numbers in a format.
        const bool asNumber = GetParam() == std::string("libreoffice.xls");
        EXPECT_EQ(book.value(0, {row, 4}), asNumber ? Value(double(truths[i])) : Value(truths[i]));
    }
}

} // namespace
