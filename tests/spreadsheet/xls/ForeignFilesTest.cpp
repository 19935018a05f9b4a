#include "spreadsheet/xls/container/CompoundFile.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

class ForeignFiles : public testing::TestWithParam<const char*> {
protected:
    Bytes file = readFixture(GetParam());
    Workbook book = Workbook::open(file);
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

TEST_P(ForeignFiles, WithoutAChangeAreSavedAsTheyWere) {
    EXPECT_FALSE(book.isModified());
    EXPECT_EQ(book.save(), file);
}

/// Records that a change of cells may touch: cells and what hangs on them, shared strings, rows and offsets.
const std::set<std::uint16_t> mayChange{0x0006, 0x00BD, 0x00BE, 0x00D6, 0x00FD, 0x0201, 0x0203,
                                        0x0204, 0x0205, 0x027E, 0x0207, 0x00D7, 0x0208, 0x020B,
                                        0x0200, 0x00FC, 0x00FF, 0x0085, 0x005E};

std::vector<Rec> untouchable(const Bytes& bytes) {
    std::vector<Rec> records = recordsOf(bytes);
    std::erase_if(records, [](const Rec& record) { return mayChange.contains(record.id); });
    return records;
}

TEST_P(ForeignFiles, KeepWhatAChangeDoesNotConcern) {
    const std::vector<std::pair<CellRef, Value>> changes{{{0, 0}, std::u16string(u"Nová slabika")},
                                                         {{2, 3}, 0.125},
                                                         {{3, 1}, 17.0},
                                                         {{5, 4}, std::u16string(u"fis1")},
                                                         {{6, 0}, std::u16string(u"přidáno")},
                                                         {{20, 2}, 1.0 / 3},
                                                         {{200, 7}, true},
                                                         {{7, 2}, std::u16string(u"uprostřed")}};
    for (const auto& [cell, value] : changes)
        book.setValue(0, cell, value);
    const Bytes saved = book.save();
    const std::vector<Rec> before = untouchable(file);
    const std::vector<Rec> after = untouchable(saved);
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(before[i], after[i]) << "record " << std::hex << before[i].id;
    EXPECT_EQ(offsetFaults(saved, file), "");
    const Workbook read = Workbook::open(saved);
    const Workbook old = Workbook::open(file);
    for (int row = 0; row < 210; ++row)
        for (int column = 0; column < 12; ++column) {
            const CellRef cell{row, column};
            const auto change = std::ranges::find(changes, cell, &std::pair<CellRef, Value>::first);
            EXPECT_EQ(read.value(0, cell), change != changes.end() ? change->second : old.value(0, cell))
                << row << " " << column;
        }
    EXPECT_EQ(read.value(1, {0, 0}), old.value(1, {0, 0}));
}

TEST_P(ForeignFiles, ChangeOnlyTheRecordOfACellOfTheSameLength) {
    const Value old = book.value(0, {2, 3});
    ASSERT_EQ(old, Value(1e300)) << "a Number record in every one of the files";
    book.setValue(0, {2, 3}, 2e300);
    const Bytes saved = book.save();
    const std::vector<Rec> before = recordsOf(file);
    std::vector<Rec> after = recordsOf(saved);
    const std::size_t marks = std::erase_if(after, [](const Rec& record) { return record.id == 0x005E; });
    EXPECT_EQ(marks, GetParam() == std::string("sheetjs.xls") ? 0U : 1U) << "the sheet with formulas";
    ASSERT_EQ(before.size(), after.size());
    int different = 0;
    for (std::size_t i = 0; i < before.size(); ++i)
        different += !(before[i] == after[i]) && before[i].id != 0x0085 && before[i].id != 0x020B;
    EXPECT_EQ(different, 1) << "besides the offsets that the mark has moved";
}

TEST_P(ForeignFiles, SurviveManyRounds) {
    for (int turn = 0; turn < 20; ++turn) {
        book.setValue(0, {turn * 5, turn % 7}, std::u16string(static_cast<std::size_t>(turn), u'ř'));
        book.setValue(0, {turn, 20}, 0.3 * turn);
        book.renameSheet(1, std::u16string(static_cast<std::size_t>(turn + 1), u'Ž'));
        Workbook next = Workbook::open(book.save());
        for (int row = 0; row < 100; ++row)
            for (int column = 0; column < 22; ++column)
                ASSERT_EQ(next.value(0, {row, column}), book.value(0, {row, column}))
                    << turn << ": " << row << " " << column;
        book = std::move(next);
        ASSERT_EQ(offsetFaults(book.save(), file), "");
    }
}

} // namespace
