// Writes files of the engine into a folder, with a listing of their cells, for other programs to read.
// Usage: write_xls_samples FOLDER [FILE.xls ...]; each further file is opened, changed and saved there, too.
#include "spreadsheet/xls/Workbook.h"

#include <bit>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

using namespace zvonika::xls;
namespace fs = std::filesystem;

namespace {

Value sampleValue(int row, int column) {
    switch (column) {
    case 0:
        return u"Příliš " + std::u16string(static_cast<std::size_t>(row % 60), u'ř');
    case 1:
        return std::u16string(row % 3 ? u"c1" : u"dis2");
    case 2:
        return double(row) - 20;
    case 3:
        return row / 3.0;
    case 4:
        return row % 2 == 0;
    case 5:
        return row % 5 ? Value(1e300 / (row + 1)) : Value(ErrorValue{0x2A});
    case 6:
        return row % 4 ? Value() : Value(std::u16string(u"𝄞 nota 🎵"));
    default:
        return row % 7 ? Value(row * 0.01)
                       : Value(u"latin é" + std::u16string(static_cast<std::size_t>(row * 9), u'x'));
    }
}

Workbook created(int rows) {
    Workbook book = Workbook::create(u"Píseň č. 1");
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < 8; ++column)
            book.setValue(0, {row, column}, sampleValue(row, column));
    book.setColumnWidth(0, 0, 20 * 256);
    book.setActiveCell(0, {2, 1});
    return book;
}

/// Changes, adds and empties cells all over the first sheet.
void change(Workbook& book) {
    for (const int row : {0, 1, 2, 5, 8, 9, 13, 39, 40, 64, 65, 66, 300, 65535})
        for (const int column : {0, 2, 3, 6, 9}) {
            if ((row + column) % 7 == 0)
                book.setValue(0, {row, column}, {});
            else
                book.setValue(0, {row, column}, sampleValue(row % 500, column));
        }
    book.renameSheet(0, u"Změněný list");
    book.setColumnWidth(0, 2, 3000);
    book.setActiveSheet(book.sheetCount() - 1);
}

std::string utf8(const std::u16string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if ((c & 0xFC00) == 0xD800 && i + 1 < text.size())
            c = 0x10000 + ((c & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        const auto put = [&](char32_t byte) { out += static_cast<char>(byte); };
        if (c < 0x80)
            put(c);
        else if (c < 0x800)
            put(0xC0 | c >> 6), put(0x80 | (c & 63));
        else if (c < 0x10000)
            put(0xE0 | c >> 12), put(0x80 | (c >> 6 & 63)), put(0x80 | (c & 63));
        else
            put(0xF0 | c >> 18), put(0x80 | (c >> 12 & 63)), put(0x80 | (c >> 6 & 63)), put(0x80 | (c & 63));
    }
    return out;
}

/// "n" and the bits, "b", "e", or "t" and the text in UTF-8; the stored result of a formula behind "f".
std::string described(const Value& value) {
    char number[32];
    if (const auto* n = std::get_if<double>(&value)) {
        std::snprintf(number, sizeof number, "n%016llx",
                      static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(*n)));
        return number;
    }
    if (const auto* b = std::get_if<bool>(&value)) return *b ? "b1" : "b0";
    if (const auto* e = std::get_if<ErrorValue>(&value)) return "e" + std::to_string(e->code);
    return "t" + utf8(std::get<std::u16string>(value));
}

void write(const Workbook& book, const fs::path& path) {
    const Bytes bytes = book.save();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    std::ofstream list(fs::path(path).replace_extension(".cells"));
    for (int sheet = 0; sheet < book.sheetCount(); ++sheet) {
        list << "sheet " << utf8(book.sheetName(sheet)) << '\n';
        for (int row = 0; row < book.usedRows(sheet); ++row)
            for (int column = 0; column < book.usedColumns(sheet); ++column)
                if (const Value value = book.value(sheet, {row, column}); value.index() != 0)
                    list << row << ' ' << column << ' ' << (book.isFormula(sheet, {row, column}) ? "f" : "")
                         << described(value) << '\n';
    }
}

Workbook opened(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return Workbook::open(Bytes(std::istreambuf_iterator<char>(in), {}));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const fs::path folder = argv[1];
    write(Workbook::create(u"Prázdný"), folder / "empty.xls");
    write(created(300), folder / "created.xls");
    for (const int rows : {1, 65}) {
        Workbook book = Workbook::open(created(rows).save());
        change(book);
        write(book, folder / ("changed" + std::to_string(rows) + ".xls"));
    }
    for (int i = 2; i < argc; ++i) {
        Workbook book = opened(argv[i]);
        change(book);
        write(book, folder / ("changed-" + fs::path(argv[i]).filename().string()));
    }
    return 0;
}
