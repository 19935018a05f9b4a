#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

/// Opens, reads, changes and saves: whatever the bytes are, that ends in a FormatError or in a file.
bool survives(const Bytes& file) {
    try {
        Workbook book = Workbook::open(file);
        for (int sheet = 0; sheet < book.sheetCount(); ++sheet) {
            const int rows = std::min(book.usedRows(sheet), 50);
            for (int row = 0; row < rows; ++row)
                for (int column = 0; column < std::min(book.usedColumns(sheet), 10); ++column)
                    book.value(sheet, {row, column});
            book.columnWidth(sheet, 3);
            book.activeCell(sheet);
        }
        try {
            for (const CellRef& cell :
                 {CellRef{0, 0}, CellRef{1, 2}, CellRef{3, 9}, CellRef{7, 1}, CellRef{90, 0}})
                book.setValue(0, cell, std::u16string(u"změna"));
        } catch (const std::invalid_argument&) {
            // a damaged cell may look like a part of an array
        }
        book.setColumnWidth(0, 1, 999);
        book.setActiveCell(0, {5, 5});
        book.setActiveSheet(book.sheetCount() - 1);
        const Bytes saved = book.save();
        EXPECT_EQ(Workbook::open(saved).value(0, {0, 0}), book.value(0, {0, 0}));
        return true;
    } catch (const FormatError&) {
        return false;
    }
}

Bytes smallFile() {
    Workbook book = Workbook::create(u"Píseň");
    book.setValue(0, {0, 0}, std::u16string(u"Koč"));
    book.setValue(0, {1, 1}, 0.1);
    book.setValue(0, {40, 1}, true);
    return book.save();
}

std::vector<Bytes> subjects() {
    std::vector<Bytes> files{smallFile()};
    for (const char* name : {"xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls"})
        files.push_back(readFixture(name));
    return files;
}

TEST(DamagedFiles, CutOffAnywhere) {
    for (const Bytes& file : subjects()) {
        ASSERT_TRUE(survives(file));
        for (std::size_t size = 0; size < file.size(); ++size)
            survives(Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)));
    }
}

TEST(DamagedFiles, CutOffWithinTheWorkbookStream) {
    const Bytes stream = streamOf(smallFile());
    const std::size_t length = recordsOf(smallFile()).back().offset + 1; // what fills up stands for the rest
    for (std::size_t size = 4; size < length; ++size) {
        const Bytes file =
            fileAround(Bytes(stream.begin(), stream.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_FALSE(survives(file)) << size << " bytes of the stream were taken for a workbook";
    }
}

class DamagedBytes : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Files, DamagedBytes, testing::Range(std::size_t{0}, std::size_t{5}));

TEST_P(DamagedBytes, AreReportedOrBorne) {
    Bytes file = subjects()[GetParam()];
    constexpr std::uint8_t masks[] = {0xFF, 0x01, 0x80};
    for (std::size_t i = 0; i < file.size(); ++i) {
        const std::uint8_t original = file[i];
        file[i] = static_cast<std::uint8_t>(original ^ masks[i % std::size(masks)]);
        survives(file);
        file[i] = original;
    }
}

} // namespace
