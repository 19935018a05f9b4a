#include "bench/xls/Songs.h"

#include <cstdio>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace zvonika::bench {

using namespace xls;

namespace {

constexpr int bellows = 8, firstBass = 12, fingering = 21, key = 22;

std::u16string numbered(const std::u16string& text, int number) {
    const std::string digits = std::to_string(number);
    return text + std::u16string(digits.begin(), digits.end());
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File opened(const std::string& path, const char* mode) {
    File file(std::fopen(path.c_str(), mode), std::fclose);
    if (!file) throw std::runtime_error("cannot open " + path);
    return file;
}

} // namespace

Workbook makeSong(int rows) {
    const std::u16string tones[] = {u"c1,", u"dis1,", u"e1,", u"fis1,", u"g1,", u"b1,", u"h1,"};
    Workbook song = Workbook::create(u"Píseň");
    for (int row = 0; row < rows; ++row) {
        song.setValue(0, {row, 0}, numbered(u"sla", row % 997) + u"říčka");
        for (int tone = 0; tone < 3; ++tone)
            song.setValue(0, {row, 1 + tone}, tones[(row + 2 * tone) % 7]);
        song.setValue(0, {row, bellows}, std::u16string(row / 4 % 2 ? u"Tlak" : u"Tah"));
        song.setValue(0, {row, firstBass}, double(row % 120 + 1));
        song.setValue(0, {row, firstBass + 1}, row / 8.0);
        song.setValue(0, {row, fingering}, std::u16string(u"1,2,3,"));
        song.setValue(0, {row, key}, std::u16string(u"C dur"));
    }
    return song;
}

void changeTenCells(Workbook& song) {
    const int step = std::max(song.usedRows(0) / 10, 1);
    for (int i = 0; i < 10; ++i) {
        const CellRef cell{i * step, i % 3};
        if (i % 4 == 3)
            song.setValue(0, {cell.row, firstBass}, i + 0.5);
        else
            song.setValue(0, cell, numbered(u"změna", i));
    }
}

Bytes readFile(const std::string& path) {
    const File file = opened(path, "rb");
    std::fseek(file.get(), 0, SEEK_END);
    Bytes bytes(static_cast<std::size_t>(std::ftell(file.get())));
    std::rewind(file.get());
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size())
        throw std::runtime_error("cannot read " + path);
    return bytes;
}

void writeFile(const std::string& path, const FileImage& image) {
    const File file = opened(path, "wb");
    image.writeTo([&](std::span<const std::uint8_t> piece) {
        if (std::fwrite(piece.data(), 1, piece.size(), file.get()) != piece.size())
            throw std::runtime_error("cannot write " + path);
    });
}

} // namespace zvonika::bench
