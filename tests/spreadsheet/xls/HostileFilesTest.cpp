// Small files that claim to be large: reading them costs neither much time nor much memory.
#include "tests/spreadsheet/xls/XlsFiles.h"
#include "tests/support/ProcessMemory.h"

#include <algorithm>
#include <ctime>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;
using zvonika::testing::peakKilobytes;

namespace {

constexpr std::size_t smallFileSize = 12 << 10;

struct Hostile {
    std::string what;
    Bytes file;
};

Bytes withBytes(Bytes file, std::size_t offset, const Bytes& bytes) {
    std::ranges::copy(bytes, file.begin() + static_cast<std::ptrdiff_t>(offset));
    return file;
}

std::vector<Rec> times(std::size_t count, const std::vector<Rec>& records) {
    std::vector<Rec> all;
    for (std::size_t i = 0; i < count; ++i)
        all.insert(all.end(), records.begin(), records.end());
    return all;
}

/// A new workbook's records with those of one kind changed.
template <typename Change>
Bytes changed(std::uint16_t id, Change change, std::vector<Rec> table = {}) {
    std::vector<Rec> all = recordsOf(fileWithTable(table));
    change(*std::ranges::find(all, id, &Rec::id));
    return fileAround(bytesOf(all));
}

Rec row(std::size_t number) {
    return {0x0208, le(2, {number, 0, 1, 255, 0, 0, 0x0100, 15})};
}

Bytes manySheetsFarDown(std::size_t count) {
    std::vector<Rec> all = recordsOf(fileWithTable({numberCell(65535, 255, 1.0)}));
    const auto entry = *std::ranges::find(all, 0x0085, &Rec::id);
    const auto begin =
        std::find_if(all.begin() + 1, all.end(), [](const Rec& record) { return record.id == 0x0809; });
    const std::vector<Rec> sheet{*begin, *std::ranges::find(all, 0x0203, &Rec::id), {0x000A, {}}};
    const std::size_t sheetSize = bytesOf(sheet).size();
    std::vector<Rec> globals{all.front()};
    std::size_t position = bytesOf(globals).size() + count * (4 + entry.data.size()) + 4;
    for (std::size_t i = 0; i < count; ++i, position += sheetSize) {
        globals.push_back(entry);
        std::ranges::copy(le(4, {position}), globals.back().data.begin());
    }
    globals.push_back({0x000A, {}});
    return fileAround(bytesOf(globals) + bytesOf(times(count, sheet)));
}

Bytes endlessContinues() {
    std::vector<Rec> table;
    for (std::size_t i = 0; i < 150; ++i)
        table.push_back({0x00FD, le(2, {i, 0, 15}) + le(4, {0})});
    std::vector<Rec> all = recordsOf(fileWithTable(table));
    auto sst = std::ranges::find(all, 0x00FC, &Rec::id);
    sst->data =
        le(4, {0xFFFFFFFF, 1}) + le(2, {0xFFFF}) + Bytes{0x0C} + le(2, {0xFFFF}) + le(4, {0xFFFFFFFF});
    all.insert(sst + 1, 1500, Rec{0x003C, {}});
    return fileAround(bytesOf(all));
}

Bytes manyFormulasOfOne() {
    const Bytes shared = Bytes{0x01} + le(2, {0, 0});
    const Rec member{0x0006, le(2, {0, 0, 15}) + Bytes(8) + le(2, {8}) + le(4, {0}) + le(2, {5}) + shared};
    std::vector<Rec> table{member,
                           {0x04BC, le(2, {0, 200}) + Bytes{0, 0, 0, 200} + le(2, {3}) + Bytes{0x1E, 5, 0}}};
    for (std::size_t i = 1; i < 200; ++i) {
        table.push_back(member);
        table.back().data[0] = static_cast<std::uint8_t>(i);
    }
    return fileWithTable(table);
}

std::vector<Hostile> hostileFiles() {
    const Bytes good = fileWithTable({numberCell(0, 0, 1.5)});
    std::vector<Rec> rowsAndCells;
    for (std::size_t i = 0; i < 180; ++i)
        rowsAndCells.push_back(row(i));
    for (int i = 179; i >= 0; --i)
        rowsAndCells.push_back(numberCell(i, 0, 1.0));
    rowsAndCells.push_back({0x00D7, le(4, {10})});
    const auto lie = [](std::size_t at, std::size_t size) {
        return [at, size](Rec& record) {
            std::fill_n(record.data.begin() + static_cast<std::ptrdiff_t>(at), size, 0xFF);
        };
    };
    return {
        {"FAT sectors without number", withBytes(good, 44, le(4, {0xFFFFFFFF}))},
        {"DIFAT in a circle", withBytes(withBytes(good, 44, le(4, {120})), 68, le(4, {0}))},
        {"stream without end", withBytes(good, 1024 + 128 + 120, le(4, {0xFFFFFFFF}))},
        {"entries in a circle", withBytes(good, 1024 + 128 + 68, le(4, {1, 0}))},
        {"mini stream without end",
         withBytes(withBytes(good, 1024 + 120, le(4, {0xFFFFFFFF})), 60, le(4, {2}))},
        {"shared strings without number", changed(0x00FC, lie(0, 8))},
        {"text without end in empty Continue records", endlessContinues()},
        {"Dimensions of all rows and more", changed(0x0200, lie(0, 12), {numberCell(3, 3, 1.0)})},
        {"Index of all rows and more", changed(0x020B, lie(4, 8), {numberCell(3, 3, 1.0)})},
        {"many sheets with a cell far down", manySheetsFarDown(80)},
        {"rows of one block, cells backwards", fileWithTable(rowsAndCells)},
        {"runs of empty cells",
         fileWithTable(times(10, {{0x00BE, le(2, {7, 0}) + Bytes(512) + le(2, {255})}}))},
        {"column records without use",
         fileWithTable(times(400, {{0x007D, le(2, {0, 255, 1000, 15, 2, 0})}}))},
        {"formulas that are one", manyFormulasOfOne()},
    };
}

void openChangeSave(const Bytes& file) {
    try {
        Workbook book = Workbook::open(file);
        for (int i = 0; i < 256; ++i) {
            if (!book.arrayAround(0, {i, 0})) book.setValue(0, {i, 0}, std::u16string(u"ř"));
            book.setColumnWidth(0, i, 700 + i);
        }
        book.setValue(0, {65535, 255}, 1.0);
        book.forEachValue(0, [](CellRef, const Value&) {});
        Workbook::open(book.save());
    } catch (const FormatError&) {
    }
}

TEST(HostileFiles, CostLittleTimeAndMemory) {
    for (const auto& [what, file] : hostileFiles()) {
        ASSERT_LE(file.size(), smallFileSize) << what;
        const long before = peakKilobytes();
        const std::clock_t start = std::clock(); // of this process, whatever else the computer does
        openChangeSave(file);
        EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 1.0) << what;
        EXPECT_LT(peakKilobytes() - before, 64 << 10) << what;
    }
}

} // namespace
