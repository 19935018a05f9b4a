// How much memory a large song takes while it is opened, changed and saved.
#include "tests/spreadsheet/xls/XlsFiles.h"
#include "tests/support/ProcessMemory.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

std::atomic<std::size_t> held{0}, peak{0};

void* taken(std::size_t size) {
    void* memory = std::malloc(size);
    if (!memory) return nullptr;
    const std::size_t now = held += zvonika::testing::sizeOf(memory);
    if (now > peak) peak = now;
    return memory;
}

} // namespace

// For the whole program; the other tests do not look at the figures. Every form, so that what one gives
// another one takes back.
void* operator new(std::size_t size) {
    void* memory = taken(size);
    if (!memory) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return taken(size);
}

void operator delete(void* memory) noexcept {
    held -= zvonika::testing::sizeOf(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    operator delete(memory);
}

namespace {

Bytes largeSong(int rows) {
    Workbook song = Workbook::create(u"Píseň");
    const std::u16string texts[] = {u"Tah", u"c1,", u"dis1,", u"C dur", u"1,2,3,"};
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < 9; ++column)
            song.setValue(0, {row, column}, (row + column) % 4 ? Value(texts[column % 5]) : Value(row / 8.0));
    return song.save();
}

TEST(Memory, ASongIsHeldOnceAndSavedPieceByPiece) {
    const Bytes file = largeSong(12000);
    Bytes read = file;
    const std::size_t others = held - read.capacity();
    peak = held.load();
    Workbook song = Workbook::open(std::move(read));
    for (int row = 0; row < 12000; row += 1200)
        song.setValue(0, {row, 1}, std::u16string(u"změna"));
    std::size_t written = 0, largest = 0;
    const FileImage image = song.image();
    image.writeTo([&](std::span<const std::uint8_t> piece) {
        written += piece.size();
        largest = std::max(largest, piece.size());
    });
    EXPECT_EQ(written, image.size());
    EXPECT_LE(largest, 256U << 10);
    EXPECT_LE(peak - others, 2 * file.size());
    EXPECT_EQ(image.bytes(), song.save());
}

} // namespace
