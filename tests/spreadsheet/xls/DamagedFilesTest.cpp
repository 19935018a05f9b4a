#include "fuzz/Checks.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

Bytes smallFile() {
    Workbook book = Workbook::create(u"Píseň");
    book.setValue(0, {0, 0}, std::u16string(u"Koč"));
    book.setValue(0, {1, 1}, 0.1);
    book.setValue(0, {40, 1}, true);
    return book.save();
}

Bytes firstOf(const Bytes& bytes, std::size_t count) {
    return Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
}

class DamagedFiles : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Writers, DamagedFiles,
                         testing::Values("", "xlwt.xls", "libreoffice.xls", "gnumeric.xls", "sheetjs.xls",
                                         "biff5.xls"));

/// Whatever the bytes are, that ends in a FormatError or in a file that can be changed.
TEST_P(DamagedFiles, AreReportedOrBorne) {
    Bytes file = *GetParam() ? readFixture(GetParam()) : smallFile();
    constexpr std::uint8_t masks[] = {0xFF, 0x01, 0x80};
    for (std::size_t i = 0; i < file.size(); i += 5) { // each place of a number comes up, if not in each
        const std::uint8_t original = file[i];
        file[i] = static_cast<std::uint8_t>(original ^ masks[i % std::size(masks)]);
        zvonika::fuzz::checkFile(file);
        file[i] = original;
        zvonika::fuzz::checkFile(firstOf(file, i));
    }
}

TEST(DamagedFiles, CutOffWithinTheWorkbookStreamAreRefused) {
    const Bytes stream = streamOf(smallFile());
    const std::size_t length = recordsOf(smallFile()).back().offset + 1; // what fills up stands for the rest
    for (std::size_t size = 4; size < length; size += 3)
        EXPECT_THROW(Workbook::open(fileAround(firstOf(stream, size))), FormatError) << size;
}

} // namespace
