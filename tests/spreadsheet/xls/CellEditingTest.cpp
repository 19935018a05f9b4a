#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

std::uint64_t u(int value) {
    return static_cast<std::uint64_t>(value);
}

Rec row(int number, int first, int end, int options = 0x0100, int format = 15) {
    return {0x0208, le(2, {u(number), u(first), u(end), 255, 0, 0, u(options), u(format)})};
}

Rec mulRk(int rowNumber, int first, const std::vector<int>& integers) {
    Bytes data = le(2, {u(rowNumber), u(first)});
    for (std::size_t i = 0; i < integers.size(); ++i)
        data = data + le(2, {20 + i}) + le(4, {u(integers[i]) << 2 | 2});
    return {0x00BD, data + le(2, {u(first) + integers.size() - 1})};
}

Rec blank(int rowNumber, int column, int format) {
    return {0x0201, le(2, {u(rowNumber), u(column), u(format)})};
}

Rec rk(int rowNumber, int column, int format, int integer) {
    return {0x027E, blank(rowNumber, column, format).data + le(4, {u(integer) << 2 | 2})};
}

Rec boolean(int rowNumber, int column, int format, bool value) {
    return {0x0205, blank(rowNumber, column, format).data + Bytes{value, 0}};
}

/// A formula with this result and these tokens.
Rec formula(int rowNumber, int column, const Bytes& result, const Bytes& tokens) {
    return {0x0006, blank(rowNumber, column, 15).data + result + le(2, {8}) + le(4, {0}) +
                        le(2, {tokens.size()}) + tokens};
}

const Bytes textResult{0, 0, 0, 0, 0, 0, 0xFF, 0xFF};

Bytes sharedWith(unsigned rowNumber, unsigned column) {
    return Bytes{0x01} + le(2, {rowNumber, column});
}

std::vector<Rec> saved(const std::vector<Rec>& table, const std::vector<std::pair<CellRef, Value>>& values) {
    Workbook book = Workbook::open(fileWithTable(table));
    for (const auto& [cell, value] : values)
        book.setValue(0, cell, value);
    const Bytes file = book.save();
    EXPECT_EQ(offsetFaults(file), "");
    return tableOf(file);
}

/// The table's records after these values were set: as one row block, and without a description of blocks.
std::vector<Rec> edited(const std::vector<Rec>& table, const std::vector<std::pair<CellRef, Value>>& values) {
    std::vector<Rec> after = saved(table, values);
    const auto isRow = [](const Rec& record) { return record.id == 0x0208; };
    const auto isBelow = [&](const auto& change) { return change.first.row >= table.front().u16(0); };
    if (isRow(table.front()) && std::ranges::is_partitioned(table, isRow) &&
        std::ranges::all_of(values, isBelow)) {
        std::vector<Rec> asBlock = table;
        asBlock.push_back(dbCellOf(table));
        std::vector<Rec> block = saved(asBlock, values);
        std::erase_if(block, [](const Rec& record) { return record.id == 0x00D7; });
        EXPECT_EQ(block, after) << "the same with a row block";
    }
    return after;
}

void expectTable(const std::vector<Rec>& actual, const std::vector<Rec>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_EQ(actual[i], expected[i]) << "record " << i;
}

TEST(MulRk, SplitsAtTheChangedCell) {
    const std::vector<Rec> table{row(0, 1, 6), mulRk(0, 1, {10, 11, 12, 13, 14})};
    expectTable(edited(table, {{{0, 3}, true}}),
                {table[0],
                 mulRk(0, 1, {10, 11}),
                 boolean(0, 3, 22, true),
                 {0x00BD, le(2, {0, 4, 23}) + le(4, {13 << 2 | 2}) + le(2, {24}) + le(4, {14 << 2 | 2}) +
                              le(2, {5})}});
    expectTable(edited(table, {{{0, 1}, true}, {{0, 5}, false}, {{0, 3}, Value()}}),
                {table[0], boolean(0, 1, 20, true), rk(0, 2, 21, 11), blank(0, 3, 22), rk(0, 4, 23, 13),
                 boolean(0, 5, 24, false)});
    expectTable(edited(table, {{{0, 2}, 99.0}, {{0, 4}, 1e300}}),
                {table[0], mulRk(0, 1, {10, 99, 12}), numberCell(0, 4, 1e300, 23), rk(0, 5, 24, 14)});
    expectTable(edited(table, {{{0, 0}, true}, {{0, 6}, true}}),
                {row(0, 0, 7), boolean(0, 0, 15, true), table[1], boolean(0, 6, 15, true)});
}

TEST(MulBlank, SplitsAtTheChangedCell) {
    const std::vector<Rec> table{row(2, 0, 4), {0x00BE, le(2, {2, 0, 30, 31, 32, 33, 3})}};
    expectTable(
        edited(table, {{{2, 0}, true}, {{2, 3}, true}}),
        {table[0], boolean(2, 0, 30, true), {0x00BE, le(2, {2, 1, 31, 32, 2})}, boolean(2, 3, 33, true)});
}

TEST(Formula, TakesItsStoredTextWithItWhenReplaced) {
    const Rec text{0x0207, le(2, {3}) + Bytes{0, 'a', 'b', 'c'}};
    const std::vector<Rec> table{row(0, 0, 3), formula(0, 0, textResult, {0x17, 1, 0, 'x'}), text,
                                 numberCell(0, 1, 7.5),
                                 formula(0, 2, {1, 0, 1, 0, 0, 0, 0xFF, 0xFF}, {0x1D, 1})};
    Workbook book = Workbook::open(fileWithTable(table));
    EXPECT_EQ(book.value(0, {0, 0}), Value(std::u16string(u"abc")));
    EXPECT_EQ(book.value(0, {0, 2}), Value(true));
    expectTable(edited(table, {{{0, 0}, 1.0}}), {table[0], rk(0, 0, 15, 1), table[3], table[4]});
}

TEST(Formula, IsOneUnderTheNumbersOfOlderVersionsToo) {
    const Rec text{0x0207, le(2, {3}) + Bytes{0, 'a', 'b', 'c'}};
    const Rec shared{0x04BC, le(2, {1, 2}) + Bytes{0, 0, 0, 2} + le(2, {3}) + Bytes{0x1E, 5, 0}};
    for (const std::uint16_t number : {std::uint16_t{0x0206}, std::uint16_t{0x0406}}) {
        SCOPED_TRACE(number);
        const auto older = [&](const Rec& record) { return Rec{number, record.data}; };
        const std::vector<Rec> table{row(0, 0, 1), row(1, 0, 1),
                                     row(2, 0, 1), older(formula(0, 0, textResult, {0x17, 1, 0, 'x'})),
                                     text,         older(formula(1, 0, Bytes(8), sharedWith(1, 0))),
                                     shared,       older(formula(2, 0, Bytes(8), sharedWith(1, 0)))};
        const Workbook book = Workbook::open(fileWithTable(table));
        EXPECT_EQ(book.value(0, {0, 0}), Value(std::u16string(u"abc")));
        EXPECT_TRUE(book.isFormula(0, {0, 0}));
        EXPECT_EQ(book.usedRows(0), 3);
        expectTable(saved(table, {{{0, 0}, 1.0}, {{1, 0}, 2.0}}),
                    {table[0], table[1], table[2], rk(0, 0, 15, 1), rk(1, 0, 15, 2),
                     older(formula(2, 0, Bytes(8), sharedWith(2, 0))), shared});
    }
}

TEST(Formula, IsBackWhenItsCellIsRestored) {
    const Rec text{0x0207, le(2, {3}) + Bytes{0, 'a', 'b', 'c'}};
    const Bytes file = fileWithTable({row(0, 0, 2), formula(0, 0, textResult, {0x17, 1, 0, 'x'}), text});
    Workbook book = Workbook::open(file);
    book.setValue(0, {0, 0}, 1.0);
    book.setValue(0, {7, 1}, 1.0);
    EXPECT_NE(book.save(), file);
    book.restoreCell(0, {0, 0});
    book.restoreCell(0, {7, 1});
    EXPECT_EQ(book.save(), file);
}

TEST(Formula, ResultsThatMayBeOutOfDateAreMarked) {
    const Rec uncalced{0x005E, le(2, {0})};
    const std::vector<Rec> table{row(0, 0, 2), formula(0, 0, Bytes(8), {0x1E, 5, 0}), numberCell(0, 1, 7.5)};
    Workbook book = Workbook::open(fileWithTable(table));
    book.setColumnWidth(0, 0, 999);
    EXPECT_EQ(find(recordsOf(book.save()), uncalced.id), nullptr) << "a width is no value";
    for (int turn = 0; turn < 2; ++turn) {
        book.setValue(0, {0, 1}, 1.0 * turn);
        const Bytes file = book.save();
        const std::vector<Rec> all = recordsOf(file);
        EXPECT_EQ(std::ranges::count(all, uncalced), 1);
        EXPECT_EQ(*(std::ranges::find(all, uncalced) - 1), *(std::ranges::find(all, 0x020B, &Rec::id) - 2));
        book = Workbook::open(file);
    }
}

TEST(SharedFormula, MovesOnToTheNextCellThatUsesIt) {
    const Bytes zero(8);
    const Rec shared{0x04BC, le(2, {0, 3}) + Bytes{0, 0, 0, 4} + le(2, {3}) + Bytes{0x1E, 5, 0}};
    const Rec text{0x0207, le(2, {1}) + Bytes{0, 'b'}};
    const std::vector<Rec> table{row(0, 0, 1),
                                 row(1, 0, 1),
                                 row(2, 0, 1),
                                 row(3, 0, 1),
                                 formula(0, 0, zero, sharedWith(0, 0)),
                                 shared,
                                 formula(1, 0, zero, sharedWith(0, 0)),
                                 formula(2, 0, textResult, sharedWith(0, 0)),
                                 text,
                                 formula(3, 0, zero, sharedWith(0, 0))};
    const std::vector<Rec> rows(table.begin(), table.begin() + 4);
    std::vector<Rec> expected = rows;
    expected.insert(expected.end(),
                    {rk(0, 0, 15, 9), rk(1, 0, 15, 8), formula(2, 0, textResult, sharedWith(2, 0)), shared,
                     text, formula(3, 0, zero, sharedWith(2, 0))});
    expectTable(edited(table, {{{0, 0}, 9.0}, {{1, 0}, 8.0}}), expected);
    expected = table;
    expected[6] = rk(1, 0, 15, 8);
    expectTable(edited(table, {{{1, 0}, 8.0}}), expected);
    expected = rows;
    expected.insert(expected.end(), {rk(0, 0, 15, 1), rk(1, 0, 15, 1), rk(2, 0, 15, 1), rk(3, 0, 15, 1)});
    expectTable(edited(table, {{{0, 0}, 1.0}, {{1, 0}, 1.0}, {{2, 0}, 1.0}, {{3, 0}, 1.0}}), expected);
}

TEST(ArrayFormula, OfOneCellIsReplacedAndADataTableIsNot) {
    const Bytes zero(8);
    const Rec array{0x0221,
                    le(2, {0, 0}) + Bytes{0, 0} + le(2, {0}) + le(4, {0}) + le(2, {3}) + Bytes{0x1E, 5, 0}};
    const std::vector<Rec> single{row(0, 0, 1), formula(0, 0, zero, sharedWith(0, 0)), array};
    expectTable(edited(single, {{{0, 0}, 1.0}}), {single[0], rk(0, 0, 15, 1)});
    const std::vector<Rec> dataTable{row(0, 0, 1), formula(0, 0, zero, Bytes{0x02} + le(2, {0, 0}))};
    Workbook book = Workbook::open(fileWithTable(dataTable));
    EXPECT_THROW(book.setValue(0, {0, 0}, 1.0), std::invalid_argument);
}

Rec xf(bool isStyle) {
    return {0x00E0,
            le(2, {0, 0, isStyle ? 0xFFF5U : 1U}) + Bytes{0x20, 0, 0, 0} + le(4, {0, 0}) + le(2, {0x20C0})};
}

/// A new workbook's records with `added` formats behind the 15 styles and the one format of cells.
std::vector<Rec> withFormats(const std::vector<Rec>& table, const std::vector<Rec>& added) {
    std::vector<Rec> all = recordsOf(fileWithTable(table));
    all.insert(std::ranges::find(all, 0x0293, &Rec::id), added.begin(), added.end());
    return all;
}

TEST(NewCell, TakesTheFormatOfItsRowThenItsColumn) {
    const Rec formatted = row(0, 0, 4, 0x0180, 0x3019); // what is above twelve bits is no format
    std::vector<Rec> all = withFormats({row(0, 0, 1, 0x0180, 0x3019), row(1, 0, 1, 0x0100, 26),
                                        numberCell(0, 0, 1.5), numberCell(1, 0, 1.5)},
                                       std::vector<Rec>(25, xf(false)));
    std::ranges::find(all, 0x0225, &Rec::id)->data = le(2, {0, 400});
    Rec fresh = row(2, 2, 4);
    std::ranges::copy(le(2, {400}), fresh.data.begin() + 6);
    all.insert(std::ranges::find(all, 0x0055, &Rec::id) + 1, {0x007D, le(2, {3, 3, 1000, 40, 0, 0})});
    Workbook book = Workbook::open(moved(all));
    for (const CellRef& cell : {CellRef{0, 3}, CellRef{1, 3}, CellRef{1, 4}, CellRef{2, 3}, CellRef{2, 2}})
        book.setValue(0, cell, true);
    expectTable(tableOf(book.save()),
                {formatted, row(1, 0, 5, 0x0100, 26), fresh, numberCell(0, 0, 1.5), boolean(0, 3, 25, true),
                 numberCell(1, 0, 1.5), boolean(1, 3, 40, true), boolean(1, 4, 15, true),
                 boolean(2, 2, 15, true), boolean(2, 3, 40, true)});
}

TEST(NewCell, NeverTakesTheFormatOfAStyle) {
    const struct {
        const char* what;
        int row, column, taken; ///< formats; 15 is a cell's, 16 a style's, 17 a cell's, 99 nobody's
    } table[] = {{"of its row", 16, 17, 17},
                 {"of its column", 16, 16, 15},
                 {"that there is not", 99, 99, 15},
                 {"but that of a cell", 17, 16, 17}};
    for (const auto& [what, rowFormat, column, taken] : table) {
        SCOPED_TRACE(what);
        std::vector<Rec> all =
            withFormats({row(0, 0, 1, 0x0180, rowFormat), numberCell(0, 0, 1.5)}, {xf(true), xf(false)});
        all.insert(std::ranges::find(all, 0x0055, &Rec::id) + 1,
                   {0x007D, le(2, {3, 3, 1000, u(column), 0, 0})});
        Workbook book = Workbook::open(moved(all));
        book.setValue(0, {0, 3}, true);
        EXPECT_EQ(tableOf(book.save()).back(), boolean(0, 3, taken, true));
    }
}

TEST(NewCell, GetsAFormatWhereAllAreOfStyles) {
    std::vector<Rec> all = recordsOf(fileWithTable({}));
    for (Rec& record : all)
        if (record.id == 0x00E0) record = xf(true);
    Workbook book = Workbook::open(fileAround(bytesOf(all)));
    book.setColumnWidth(0, 1, 999);
    book.setValue(0, {0, 3}, true);
    const Bytes file = book.save();
    const std::vector<Rec> saved = recordsOf(file);
    EXPECT_EQ(std::ranges::count(saved, 0x00E0, &Rec::id), 17);
    EXPECT_EQ(*(std::ranges::find(saved, 0x0293, &Rec::id) - 1), xf(false));
    EXPECT_EQ(find(saved, 0x0205)->u16(4), 16);
    EXPECT_EQ(find(saved, 0x007D)->u16(6), 16);
    EXPECT_EQ(find(saved, 0x0208)->u16(14), 16);
    book = Workbook::open(file);
    book.setValue(0, {1, 3}, true);
    EXPECT_EQ(std::ranges::count(recordsOf(book.save()), 0x00E0, &Rec::id), 17) << "once is enough";
}

TEST(NewCell, StandsBehindPageSettingsThatStandBehindDimensions) {
    const Rec margin{0x0026, Bytes(8)}, printer{0x004D, Bytes(4)}, more{0x003C, Bytes(6)},
        drawing{0x00EC, Bytes(8)};
    for (const bool blocks : {true, false}) {
        std::vector<Rec> all = recordsOf(fileWithTable({margin, printer, more, drawing}));
        if (!blocks) std::erase_if(all, [](const Rec& record) { return record.id == 0x020B; });
        Workbook book = Workbook::open(moved(all));
        book.setValue(0, {2, 1}, true);
        book.setValue(0, {90, 1}, true);
        const Bytes file = book.save();
        EXPECT_EQ(offsetFaults(file), "");
        const std::vector<Rec> saved = recordsOf(file);
        const auto place = [&](const Rec& record) {
            return std::ranges::find(saved, record) - saved.begin();
        };
        EXPECT_LT(place(more), place(row(2, 1, 2)));
        EXPECT_LT(place(boolean(90, 1, 15, true)), place(drawing));
        EXPECT_EQ(Workbook::open(file).value(0, {2, 1}), Value(true));
    }
}

TEST(NewCell, StandsInOrderWhereverTheRowsAre) {
    // No Row records: none are added. Rows before their own cells: so are new ones.
    expectTable(edited({numberCell(1, 1, 1.5), numberCell(5, 1, 1.5)},
                       {{{1, 0}, true}, {{3, 0}, true}, {{0, 9}, true}, {{6, 0}, true}}),
                {boolean(0, 9, 15, true), boolean(1, 0, 15, true), numberCell(1, 1, 1.5),
                 boolean(3, 0, 15, true), numberCell(5, 1, 1.5), boolean(6, 0, 15, true)});
    expectTable(edited({row(1, 1, 2), numberCell(1, 1, 1.5), row(5, 1, 2), numberCell(5, 1, 1.5)},
                       {{{3, 0}, true}, {{6, 0}, true}, {{5, 2}, true}}),
                {row(1, 1, 2), numberCell(1, 1, 1.5), row(3, 0, 1), boolean(3, 0, 15, true), row(5, 1, 3),
                 numberCell(5, 1, 1.5), boolean(5, 2, 15, true), row(6, 0, 1), boolean(6, 0, 15, true)});
    expectTable(edited({row(1, 1, 2), row(2, 0, 0), numberCell(1, 1, 1.5)}, {{{2, 7}, true}, {{0, 0}, true}}),
                {row(0, 0, 1), row(1, 1, 2), row(2, 7, 8), boolean(0, 0, 15, true), numberCell(1, 1, 1.5),
                 boolean(2, 7, 15, true)});
}

TEST(NewCell, StandsInOrderWhereARowRecordDoesNot) {
    const Rec five = numberCell(5, 0, 1.5), one = numberCell(1, 0, 1.5);
    const std::vector<Rec> before{row(1, 0, 1), one, row(5, 0, 1), five, row(2, 0, 0)};
    const struct {
        const char* what;
        CellRef cell;
        std::vector<Rec> after;
    } table[] = {
        {"in that row", {2, 1}, {before[0], one, before[2], boolean(2, 1, 15, true), five, row(2, 1, 2)}},
        {"in the row behind",
         {3, 1},
         {before[0], one, before[2], row(3, 1, 2), boolean(3, 1, 15, true), five, before[4]}},
        {"in the last row",
         {6, 1},
         {before[0], one, before[2], five, row(6, 1, 2), boolean(6, 1, 15, true), before[4]}},
    };
    for (const auto& [what, cell, after] : table) {
        SCOPED_TRACE(what);
        expectTable(edited(before, {{cell, true}}), after);
    }
}

TEST(Cells, OutOfOrderAndTwiceAreFound) {
    const Rec five = numberCell(5, 1, 4.5), one = numberCell(1, 1, 5.5);
    expectTable(edited({row(1, 1, 2), row(5, 1, 2), five, one}, {{{3, 1}, true}}),
                {row(1, 1, 2), row(3, 1, 2), row(5, 1, 2), five, one, boolean(3, 1, 15, true)});
    const std::vector<Rec> table{numberCell(5, 1, 1.5), numberCell(1, 1, 2.5), numberCell(5, 1, 3.5)};
    Workbook book = Workbook::open(fileWithTable(table));
    EXPECT_EQ(book.value(0, {5, 1}), Value(3.5)) << "the later record counts";
    expectTable(edited(table, {{{5, 1}, true}, {{1, 1}, false}}),
                {boolean(1, 1, 15, false), boolean(5, 1, 15, true)});
}

TEST(Cells, OfSeveralRecordsKeepNoneOfTheOlderOnes) {
    const Rec text{0x0207, le(2, {1}) + Bytes{0, 'b'}};
    const Rec blanks{0x00BE, le(2, {0, 0, 30, 31, 32, 2})};
    const Rec shared{0x04BC, le(2, {0, 1}) + Bytes{0, 0, 0, 2} + le(2, {3}) + Bytes{0x1E, 5, 0}};
    const Rec member = formula(1, 0, Bytes(8), sharedWith(0, 0));
    const Rec holder = formula(0, 0, Bytes(8), sharedWith(0, 0));
    const Rec last = numberCell(0, 0, 2.5), other = numberCell(1, 0, 7.5);
    const struct {
        const char* what;
        std::vector<Rec> table;
        CellRef cell;
        std::vector<Rec> cleared;
    } table[] = {
        {"single records",
         {numberCell(0, 0, 1.5), numberCell(0, 0, 3.5), last, other},
         {0, 0},
         {blank(0, 0, 15), other}},
        {"a formula and its text",
         {formula(0, 0, textResult, {0x17, 1, 0, 'x'}), text, other, last},
         {0, 0},
         {other, blank(0, 0, 15)}},
        {"inside a run",
         {mulRk(0, 0, {10, 11, 12}), numberCell(0, 1, 2.5)},
         {0, 1},
         {rk(0, 0, 20, 10), rk(0, 2, 22, 12), blank(0, 1, 15)}},
        {"a text that goes on",
         {{0x0204, blank(0, 0, 15).data + le(2, {3}) + Bytes{0, 'a'}},
          {0x003C, Bytes{0, 'b', 'c'}},
          last,
          other},
         {0, 0},
         {blank(0, 0, 15), other}},
        {"at the end of a run",
         {blanks, numberCell(0, 2, 1.5)},
         {0, 2},
         {{0x00BE, le(2, {0, 0, 30, 31, 1})}, blank(0, 2, 15)}},
        {"a run of nothing else",
         {{0x00BD, le(2, {0, 0, 15}) + le(4, {6}) + le(2, {0})}, last},
         {0, 0},
         {blank(0, 0, 15)}},
        {"what others share stays",
         {holder, shared, member, last},
         {0, 0},
         {holder, shared, member, blank(0, 0, 15)}},
    };
    for (const auto& [what, before, cell, cleared] : table) {
        SCOPED_TRACE(what);
        expectTable(edited(before, {{cell, Value()}}), cleared);
    }
    Workbook book = Workbook::create(u"List");
    book.setValue(0, {0, 0}, std::u16string(u"a"));
    std::vector<Rec> all = recordsOf(book.save());
    const auto label = std::ranges::find(all, 0x00FD, &Rec::id);
    all.insert(label, *label);
    book = Workbook::open(fileAround(bytesOf(all)));
    book.setValue(0, {0, 0}, std::u16string(u"b"));
    EXPECT_EQ(find(recordsOf(book.save()), 0x00FC)->u32(0), 1U) << "texts in cells are counted";
}

TEST(Cells, OfEveryKindAreRead) {
    const Rec label{0x0204, blank(0, 0, 15).data + le(2, {3}) + Bytes{1} + le(2, {0x010D, 'a'})};
    const Rec rest{0x003C, Bytes{0, 'x'}}; // narrow from here on
    const Rec rich{0x00D6, blank(0, 1, 15).data + le(2, {2}) + Bytes{0, 'o', 'k'} + le(2, {1, 0, 1})};
    const Rec error{0x0205, blank(0, 2, 15).data + Bytes{0x17, 1}};
    const Rec emptyText = formula(0, 3, {3, 0, 0, 0, 0, 0, 0xFF, 0xFF}, {0x1E, 5, 0});
    const Rec errorResult = formula(0, 4, {2, 0, 0x07, 0, 0, 0, 0xFF, 0xFF}, {0x1E, 5, 0});
    const Workbook book =
        Workbook::open(fileWithTable({label, rest, rich, error, emptyText, errorResult, blank(0, 5, 15)}));
    const Value expected[] = {std::u16string(u"čax"), std::u16string(u"ok"), ErrorValue{0x17},
                              std::u16string(),       ErrorValue{0x07},      Value()};
    for (int column = 0; column < 6; ++column)
        EXPECT_EQ(book.value(0, {0, column}), expected[column]) << column;
    EXPECT_EQ(book.usedColumns(0), 5);
}

TEST(NestedChart, IsNotTakenForTheSheet) {
    const Rec bof{0x0809, le(2, {0x0600, 0x0020, 0, 0, 0, 0, 0, 0})};
    const std::vector<Rec> table{
        numberCell(0, 0, 1.5), bof, numberCell(0, 0, 99.5), {0x000A, {}}, numberCell(7, 0, 2.5)};
    Workbook book = Workbook::open(fileWithTable(table));
    EXPECT_EQ(book.value(0, {0, 0}), Value(1.5));
    EXPECT_EQ(book.value(0, {7, 0}), Value(2.5));
    book.setValue(0, {0, 0}, true);
    const std::vector<Rec> all = recordsOf(book.save());
    EXPECT_NE(std::ranges::find(all, table[2]), all.end());
}

TEST(RowBlocks, GrowWithTheSheet) {
    Workbook book = Workbook::create(u"List");
    for (const int rowNumber : {40, 41, 100, 7, 300})
        book.setValue(0, {rowNumber, 3}, 1.0 * rowNumber);
    book = Workbook::open(book.save());
    for (const int rowNumber : {0, 6, 8, 39, 42, 71, 72, 99, 131, 132, 299, 1000})
        for (const int column : {0, 3, 5})
            book.setValue(0, {rowNumber, column},
                          u"ř" + std::u16string(static_cast<std::size_t>(rowNumber % 9), u'x'));
    const Bytes file = book.save();
    EXPECT_EQ(offsetFaults(file), "");
    const std::vector<Rec> all = recordsOf(file);
    const Rec* index = find(all, 0x020B);
    EXPECT_EQ(index->u32(4), 0U);
    EXPECT_EQ(index->u32(8), 1001U);
    EXPECT_EQ((index->data.size() - 16) / 4,
              static_cast<std::size_t>(std::ranges::count(all, 0x00D7, &Rec::id)));
    const Workbook read = Workbook::open(file);
    for (int rowNumber = 0; rowNumber < 1001; ++rowNumber)
        for (int column = 0; column < 6; ++column)
            EXPECT_EQ(read.value(0, {rowNumber, column}), book.value(0, {rowNumber, column}));
}

TEST(Dimensions, AreNeverEmptyRanges) {
    // A sheet whose range is empty although it has cells: the range covers them, too.
    Workbook book = Workbook::open(fileWithTable({numberCell(3, 1, 1.5)}));
    book.setValue(0, {5, 5}, 1.0);
    EXPECT_EQ(find(recordsOf(book.save()), 0x0200)->data, le(4, {3, 6}) + le(2, {1, 6, 0}));
}

} // namespace
