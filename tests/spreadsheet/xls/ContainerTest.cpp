#include "spreadsheet/xls/container/CompoundFile.h"
#include "spreadsheet/xls/records/PatchedStream.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

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

/// A container with sectors of this size around the streams "Workbook" and "Xorkbook"; the table says
/// `last` of the last sector of each.
Bytes containerOf(std::size_t sector, const std::vector<Bytes>& contents, std::uint32_t last) {
    const Bytes small = CompoundFile::withEmptyStream("Workbook").bytes();
    Bytes header(small.begin(), small.begin() + 512), streams;
    header[26] = sector == 512 ? 3 : 4;
    header[30] = sector == 512 ? 9 : 12;
    header[40] = sector == 512 ? 0 : 1; // directory sectors are counted in version 4
    header.resize(sector);
    Bytes fat = le(4, {0xFFFFFFFD, 0xFFFFFFFE});
    Bytes directory(small.begin() + 1024, small.begin() + 1024 + 128);
    for (std::size_t i = 0; i < contents.size(); ++i) {
        Bytes entry(small.begin() + 1024 + 128, small.begin() + 1024 + 256);
        entry[0] = static_cast<std::uint8_t>('W' + i);
        if (i + 1 < contents.size()) std::ranges::copy(le(4, {i + 2}), entry.begin() + 72);
        std::ranges::copy(le(4, {fat.size() / 4}) + le(8, {contents[i].size()}), entry.begin() + 116);
        directory = directory + entry;
        streams = streams + contents[i];
        streams.resize((streams.size() + sector - 1) / sector * sector);
        while (fat.size() / 4 < 1 + streams.size() / sector)
            fat = fat + le(4, {fat.size() / 4 + 1});
        fat = fat + le(4, {last});
    }
    fat.resize(sector, 0xFF);
    directory.resize(sector);
    return header + fat + directory + streams;
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
        const Bytes& file = container.bytes();
        const auto number = [&](std::size_t at) { return file[at] | file[at + 1] << 8 | file[at + 2] << 16; };
        if (size != 7500000) continue; // the first list of table sectors outside the header
        const std::size_t list = (std::size_t(number(68)) + 1) * 512 + 4 * (std::size_t(number(44)) - 109);
        ASSERT_EQ(number(list), 0xFFFFFF) << "of table sectors: the first place that is free";
    }
    EXPECT_LT(container.bytes().size(), 20400000U) << "freed sectors are used again";
}

TEST(Container, KeepsStreamsInSectorsOfBothSizesAndThoseWhoseLastTheTableCallsFree) {
    const struct {
        std::uint32_t last;
        std::size_t sector, size;
    } table[] = {{0xFFFFFFFF, 512, 5000},  {0xFFFFFFFF, 512, 30000},   {0xFFFFFFFF, 4096, 5000},
                 {0xFFFFFFFF, 4096, 9000}, {0xFFFFFFFF, 4096, 700000}, {0xFFFFFFFE, 4096, 9000}};
    for (const auto& [last, sector, size] : table) {
        SCOPED_TRACE(std::to_string(sector) + " " + std::to_string(size));
        const Bytes other = pattern(4097, 9), fresh = pattern(size, 5);
        const Bytes file = containerOf(sector, {pattern(4200, 1), other}, last);
        CompoundFile container(CompoundFile(file).withStream(1, fresh));
        EXPECT_EQ(container.readStream(1), fresh);
        EXPECT_EQ(container.readStream(*container.findStream("Xorkbook")), other);
        container = CompoundFile(container.withStream(1, pattern(4200, 1)));
        container = CompoundFile(container.withStream(1, fresh));
        EXPECT_EQ(container.readStream(2), other);
        EXPECT_LE(container.bytes().size(), file.size() + size + 4 * sector)
            << "freed sectors are used again";
        // The other one goes on in a sector that stands before its own.
        container = CompoundFile(container.withStream(1, pattern(4096, 2)));
        container = CompoundFile(container.withStream(2, pattern(4097 + size, 7)));
        EXPECT_EQ(container.readStream(1), pattern(4096, 2));
        EXPECT_EQ(container.readStream(2), pattern(4097 + size, 7));
    }
}

TEST(PatchedStream, IsTheSameHoweverItIsRead) {
    const Bytes original = pattern(40, 1), fresh = pattern(9, 100);
    PatchList patches;
    patches.insert(0, ByteView(fresh).first(3));
    patches.replace(10, 4, {}); // in no order
    patches.replace(5, 2, fresh);
    patches.insert(20, ByteView(fresh).first(1), InsertOrder::Cell);
    patches.insert(20, ByteView(fresh).last(2), InsertOrder::Row);
    patches.replace(38, 2, ByteView(fresh).first(5));
    patches.finish();
    PatchedStream stream(original, std::move(patches));
    const auto part = [&](std::size_t begin, std::size_t end) {
        return Bytes(original.begin() + std::ptrdiff_t(begin), original.begin() + std::ptrdiff_t(end));
    };
    Bytes whole = Bytes(fresh.begin(), fresh.begin() + 3) + part(0, 5) + fresh + part(7, 10) + part(14, 20) +
                  Bytes(fresh.end() - 2, fresh.end()) + Bytes{fresh[0]} + part(20, 38) +
                  Bytes(fresh.begin(), fresh.begin() + 5);
    stream.set32(30, 0x44332211);
    stream.set16(6, 0x6655);
    stream.finish();
    std::ranges::copy(Bytes{0x11, 0x22, 0x33, 0x44}, whole.begin() + 30);
    std::ranges::copy(Bytes{0x55, 0x66}, whole.begin() + 6);
    ASSERT_EQ(stream.size(), whole.size());
    EXPECT_EQ(stream.map(20), 29U) << "behind what is inserted there";
    for (std::size_t begin = 0; begin <= whole.size(); ++begin)
        for (std::size_t end = begin; end <= whole.size(); ++end) {
            Bytes read(end - begin);
            stream.read(begin, read);
            ASSERT_TRUE(std::ranges::equal(read, std::span(whole).subspan(begin, end - begin)))
                << begin << " to " << end;
        }
}

struct Damage {
    const char* what;
    std::size_t offset;
    Bytes bytes;
    Refusal refusal;
    bool namesThePlace = true; ///< that very offset
};

TEST(Container, DamageIsNamed) {
    Bytes good = fileAround(pattern(9000, 3)); // header, FAT, directory, 18 sectors of stream
    std::ranges::copy(le(4, {0xFFFFFFFE}), good.begin() + 512 + 4 * 20); // and one that is cut off
    const Damage table[] = {
        {"sector size", 30, {11}, Refusal::Damaged},
        {"mini sector size", 32, {9}, Refusal::Damaged},
        {"more FAT sectors than the file", 44, le(4, {1000}), Refusal::Truncated},
        {"FAT outside the file", 76, le(4, {5000}), Refusal::Truncated, false},
        {"directory chain without end", 512 + 4, le(4, {1}), Refusal::Damaged},
        {"directory nowhere", 48, le(4, {7777}), Refusal::Damaged},
        {"no root", 1024 + 66, {2}, Refusal::Damaged, false},
        {"stream in a circle", 512 + 4 * 10, le(4, {3}), Refusal::Damaged},
        {"stream through the directory", 512 + 4 * 10, le(4, {1}), Refusal::Damaged},
        {"stream into a free sector", 512 + 4 * 10, le(4, {0xFFFFFFFF}), Refusal::Damaged},
        {"stream into what never was", 512 + 4 * 10, le(4, {60}), Refusal::Damaged},
        {"stream into what is cut off", 512 + 4 * 10, le(4, {20}), Refusal::Truncated},
        {"stream shorter than its size", 1024 + 128 + 120, le(4, {99999}), Refusal::Damaged},
        {"stream of no mini stream", 1024 + 128 + 120, le(4, {64}), Refusal::Damaged, false},
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
            EXPECT_EQ(error.offset() == damage.offset, damage.namesThePlace) << error.what();
            EXPECT_NE(error.offset(), 0U) << damage.what;
        }
    }
}

} // namespace
