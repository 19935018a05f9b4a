#include "song/xls/container/CompoundFile.h"
#include "tests/song/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

Bytes pattern(std::size_t size, unsigned seed) {
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 31 + (i >> 8) * 7 + seed);
    return bytes;
}

Bytes filledUp(Bytes contents) {
    if (contents.size() < 4096) contents.resize(4096);
    return contents;
}

/// A container with 4,096-byte sectors around a workbook stream.
Bytes largeSectorFile(Bytes stream) {
    constexpr std::size_t sector = 4096;
    const std::size_t size = stream.size();
    stream.resize((size + sector - 1) / sector * sector);
    Bytes header(sector);
    const Bytes small = CompoundFile::withEmptyStream("Workbook").bytes();
    std::copy_n(small.begin(), 512, header.begin());
    header[26] = 4;
    header[30] = 12;
    header[40] = 1; // directory sectors are counted in this version
    Bytes fat = le(4, {0xFFFFFFFD, 0xFFFFFFFE});
    const std::size_t sectors = stream.size() / sector;
    for (std::size_t i = 0; i < sectors; ++i)
        fat = fat + le(4, {i + 1 < sectors ? i + 3 : 0xFFFFFFFE});
    fat.resize(sector, 0xFF);
    Bytes directory(small.begin() + 1024, small.begin() + 1536);
    const Bytes place = le(4, {2}) + le(8, {size});
    std::ranges::copy(place, directory.begin() + 128 + 116);
    directory.resize(sector);
    return header + fat + directory + stream;
}

TEST(Container, KeepsAStreamOfEverySize) {
    CompoundFile container = CompoundFile::withEmptyStream("Workbook");
    unsigned seed = 0;
    // Growing, shrinking, over the limits of a sector, of a FAT sector and of the header's list of those (6.9
    // MB).
    for (const std::size_t size :
         {0U, 1U, 4095U, 4096U, 4097U, 65000U, 66000U, 100U, 7500000U, 20000000U, 5000U, 7600000U}) {
        const Bytes contents = pattern(size, ++seed);
        container = CompoundFile(container.withStream(1, contents));
        ASSERT_EQ(container.findStream("workBOOK"), 1U);
        ASSERT_EQ(container.readStream(1), filledUp(contents)) << size;
    }
    EXPECT_LT(container.bytes().size(), 20400000U) << "freed sectors are used again";
}

TEST(Container, KeepsTheOtherStreams) {
    for (const char* name : {"libreoffice.xls", "gnumeric.xls", "sheetjs.xls"}) {
        CompoundFile container(readFixture(name));
        const std::uint32_t workbook = *container.findStream("Workbook");
        std::map<std::string, Bytes> others;
        for (const char* other : {"\x01"
                                  "CompObj",
                                  "\x01Ole",
                                  "\x05"
                                  "DocumentSummaryInformation",
                                  "\x05SummaryInformation", "\x01Sh33tJ5"})
            if (const auto entry = container.findStream(other)) others[other] = container.readStream(*entry);
        ASSERT_FALSE(others.empty());
        for (const std::size_t size : {100U, 9000U, 70000U, 3000U}) {
            container = CompoundFile(container.withStream(workbook, pattern(size, 1)));
            EXPECT_EQ(container.readStream(workbook), filledUp(pattern(size, 1)));
            for (const auto& [other, contents] : others)
                EXPECT_EQ(container.readStream(*container.findStream(other)), contents)
                    << name << " " << other;
        }
    }
}

TEST(Container, WithLargeSectorsIsEditedToo) {
    Workbook book = Workbook::create(u"List");
    for (int row = 0; row < 400; ++row)
        book.setValue(0, {row, 0}, 0.123 + row);
    const Bytes file = largeSectorFile(streamOf(book.save()));
    book = Workbook::open(file);
    EXPECT_EQ(book.value(0, {399, 0}), Value(399.123));
    EXPECT_EQ(book.save(), file);
    for (int row = 0; row < 9000; ++row)
        book.setValue(0, {row, 3}, 0.7 + row);
    const Bytes saved = book.save();
    EXPECT_EQ(saved[30], 12);
    EXPECT_EQ(Workbook::open(saved).value(0, {8999, 3}), Value(8999.7));
}

TEST(Container, StreamNamedBookIsFound) {
    CompoundFile container = CompoundFile::withEmptyStream("BOOK");
    const Bytes file = container.withStream(1, streamOf(Workbook::create(u"Staré").save()));
    EXPECT_EQ(Workbook::open(file).sheetName(0), u"Staré");
}

struct Damage {
    const char* what;
    std::size_t offset;
    Bytes bytes;
    Refusal refusal;
};

TEST(Container, DamageIsNamed) {
    const Bytes good = fileAround(pattern(9000, 3)); // header, FAT, directory, 18 sectors of stream
    const Damage table[] = {
        {"sector size", 30, {11}, Refusal::Damaged},
        {"mini sector size", 32, {9}, Refusal::Damaged},
        {"more FAT sectors than the file", 44, le(4, {1000}), Refusal::Truncated},
        {"FAT outside the file", 76, le(4, {5000}), Refusal::Truncated},
        {"directory chain without end", 512 + 4, le(4, {1}), Refusal::Damaged},
        {"directory outside the file", 48, le(4, {7777}), Refusal::Truncated},
        {"no root", 1024 + 66, {2}, Refusal::Damaged},
        {"stream in a circle", 512 + 4 * 10, le(4, {3}), Refusal::Damaged},
        {"stream through the directory", 512 + 4 * 10, le(4, {1}), Refusal::Damaged},
        {"stream into a free sector", 512 + 4 * 10, le(4, {0xFFFFFFFF}), Refusal::Damaged},
        {"stream outside the file", 512 + 4 * 10, le(4, {60}), Refusal::Truncated},
        {"stream shorter than its size", 1024 + 128 + 120, le(4, {99999}), Refusal::Truncated},
        {"stream of no mini stream", 1024 + 128 + 120, le(4, {64}), Refusal::Truncated},
    };
    for (const Damage& damage : table) {
        Bytes file = good;
        std::ranges::copy(damage.bytes, file.begin() + static_cast<std::ptrdiff_t>(damage.offset));
        try {
            const CompoundFile container(file);
            container.readStream(*container.findStream("Workbook"));
            ADD_FAILURE() << damage.what << " was read";
        } catch (const FormatError& error) {
            EXPECT_EQ(error.refusal(), damage.refusal) << damage.what << ": " << error.what();
            EXPECT_FALSE(error.place().empty());
        }
    }
}

} // namespace
