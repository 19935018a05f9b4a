// What files of other programs lack or have too much of.
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

const std::vector<std::pair<CellRef, Value>> changes{{{0, 0}, std::u16string(u"Nová slabika")},
                                                     {{2, 3}, 0.125},
                                                     {{3, 1}, 17.0},
                                                     {{6, 0}, std::u16string(u"přidáno")},
                                                     {{40, 1}, std::monostate()},
                                                     {{200, 7}, true}};

/// The fixture without records of these kinds, offsets put right by the engine itself: it renames a sheet.
Bytes without(const std::string& name, const std::set<std::uint16_t>& kinds) {
    std::vector<Rec> all = recordsOf(readFixture(name));
    std::uint32_t shift = 0;
    std::map<std::uint32_t, std::uint32_t> moved;
    for (const Rec& record : all) {
        moved[record.offset] = record.offset - shift;
        if (kinds.contains(record.id)) shift += 4 + static_cast<std::uint32_t>(record.data.size());
    }
    std::erase_if(all, [&](const Rec& record) { return kinds.contains(record.id); });
    for (Rec& record : all) {
        const auto mend = [&](std::size_t at) {
            std::ranges::copy(le(4, {moved[record.u32(at)]}),
                              record.data.begin() + static_cast<std::ptrdiff_t>(at));
        };
        if (record.id == 0x0085) mend(0);
        for (std::size_t i = 16; record.id == 0x020B && i + 4 <= record.data.size(); i += 4)
            mend(i);
    }
    return fileAround(bytesOf(all));
}

TEST(Pitfalls, RecordsThatAFileLacksAreNotMissed) {
    const struct {
        const char* what;
        std::set<std::uint16_t> kinds;
    } table[] = {{"Index", {0x020B}},
                 {"Index and row blocks", {0x020B, 0x00D7}},
                 {"ExtSst", {0x00FF}},
                 {"Row", {0x0208, 0x00D7, 0x020B}},
                 {"Dimensions", {0x0200}},
                 {"Window2 and Selection", {0x023E, 0x001D}},
                 {"Window1", {0x003D}},
                 {"everything but cells and texts",
                  {0x00D7, 0x020B, 0x00FF, 0x0208, 0x0200, 0x023E, 0x001D, 0x003D, 0x007D, 0x0055}}};
    for (const char* name : {"xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls"})
        for (const auto& [what, kinds] : table) {
            SCOPED_TRACE(std::string(name) + " without " + what);
            const Bytes file = without(name, kinds);
            Workbook book = Workbook::open(file);
            EXPECT_EQ(book.save(), file);
            for (const auto& [cell, value] : changes)
                book.setValue(0, cell, value);
            book.setColumnWidth(0, 2, 3000);
            book.setActiveCell(0, {3, 1});
            book.setActiveSheet(1);
            const Bytes saved = book.save();
            EXPECT_EQ(offsetFaults(saved, file), "");
            const Workbook old = Workbook::open(readFixture(name)), read = Workbook::open(saved);
            EXPECT_EQ(read.columnWidth(0, 2), 3000);
            EXPECT_EQ(read.activeCell(0), (kinds.contains(0x023E) ? CellRef{} : CellRef{3, 1}));
            for (int row = 0; row < 210; ++row)
                for (int column = 0; column < 10; ++column) {
                    const auto change = std::ranges::find(changes, CellRef{row, column},
                                                          &decltype(changes)::value_type::first);
                    EXPECT_EQ(read.value(0, {row, column}),
                              change != changes.end() ? change->second : old.value(0, {row, column}))
                        << row << " " << column;
                }
        }
}

TEST(Pitfalls, CellRecordsOfAChartSheetAreNoCells) {
    std::vector<Rec> all = recordsOf(fileWithTable({numberCell(0, 0, 1.5)}));
    const Rec point{0x0203, le(2, {31999, 300, 0}) + Bytes(8)}; // 300 series: beyond the columns of a sheet
    const Bytes chart = bytesOf({{0x0809, le(2, {0x0600, 0x0020, 0, 0, 0, 0, 0, 0})}, point, {0x000A, {}}});
    const auto sheet = std::ranges::find(all, 0x0085, &Rec::id);
    Rec entry{0x0085, le(4, {0}) + Bytes{0, 2, 4, 0, 'G', 'r', 'a', 'f'}};
    const std::uint32_t added = 4 + static_cast<std::uint32_t>(entry.data.size());
    std::ranges::copy(le(4, {sheet->u32(0) + added}), sheet->data.begin());
    const std::uint32_t end = static_cast<std::uint32_t>(bytesOf(all).size()) + added;
    std::ranges::copy(le(4, {end}), entry.data.begin());
    all.insert(sheet + 1, entry);
    Workbook book = Workbook::open(fileAround(bytesOf(all) + chart));
    ASSERT_EQ(book.sheetCount(), 1);
    book.setValue(0, {9, 9}, std::u16string(u"ř"));
    const std::vector<Rec> saved = recordsOf(book.save());
    EXPECT_EQ(std::ranges::count(saved, point), 1);
    EXPECT_EQ(offsetFaults(book.save()).find("BoundSheet"), std::string::npos);
}

TEST(Pitfalls, OneSheetIsSelectedWhereSeveralWere) {
    std::vector<Rec> all = recordsOf(readFixture("xlwt.xls"));
    auto window = std::ranges::find(all, 0x003D, &Rec::id);
    window->data[14] = 2;
    Workbook book = Workbook::open(fileAround(bytesOf(all)));
    book.setActiveSheet(1);
    EXPECT_EQ(find(recordsOf(book.save()), 0x003D)->u16(14), 1);
}

TEST(Pitfalls, AnActiveSheetThatIsNoWorksheetIsNoChange) {
    const std::vector<Rec> all = recordsOf(readFixture("xlwt.xls"));
    const auto changed = [&](std::uint16_t id, std::size_t at, std::uint8_t value) {
        std::vector<Rec> records = all;
        const auto record = std::ranges::find(records, id, &Rec::id);
        record->data[at] = value;
        return fileAround(bytesOf(records));
    };
    const struct {
        const char* what;
        Bytes file;
        bool changes; ///< whether choosing the last worksheet does
    } table[] = {{"a chart sheet", changed(0x0085, 5, 2), false}, // one worksheet is left
                 {"beyond the last", changed(0x003D, 10, 99), true},
                 {"no Window1", without("xlwt.xls", {0x003D}), false}};
    for (const auto& [what, file, changes] : table) {
        SCOPED_TRACE(what);
        Workbook book = Workbook::open(file);
        book.setActiveSheet(book.activeSheet());
        EXPECT_EQ(book.save(), file);
        book.setActiveSheet(book.sheetCount() - 1);
        EXPECT_EQ(book.isModified(), changes);
        EXPECT_EQ(Workbook::open(book.save()).activeSheet(), changes ? book.sheetCount() - 1 : 0);
    }
}

} // namespace
