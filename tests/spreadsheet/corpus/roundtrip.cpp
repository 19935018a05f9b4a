// Opens a workbook and saves it twice: without a change, and with the changes of a listing.
// Usage: corpus_roundtrip FILE LISTING SAME CHANGED; "new" as FILE is a new workbook.
// A line of the listing is "sheet row column what": n and a number, t and a text, b0 or b1, e and a code, or
// - to empty the cell; r and the sheet's name, w and the column's width, a to make the cell the active one.
#include "spreadsheet/xls/Workbook.h"

#include <codecvt>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <locale>
#include <sstream>

using namespace zvonika::xls;

namespace {

Bytes read(const char* path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("cannot be read");
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

void write(const char* path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush()) throw std::runtime_error("cannot be written");
}

std::u16string utf16(const std::string& text) {
    return std::wstring_convert<std::codecvt_utf8_utf16<char16_t>, char16_t>().from_bytes(text);
}

Value valueOf(const std::string& what) {
    switch (what.at(0)) {
    case 'n':
        return std::strtod(what.c_str() + 1, nullptr);
    case 't':
        return utf16(what.substr(1));
    case 'b':
        return what == "b1";
    case 'e':
        return ErrorValue{static_cast<std::uint8_t>(std::stoi(what.substr(1)))};
    default:
        return {};
    }
}

void set(Workbook& book, int sheet, CellRef cell, const std::string& what) {
    switch (what.at(0)) {
    case 'r':
        return book.renameSheet(sheet, utf16(what.substr(1)));
    case 'w':
        return book.setColumnWidth(sheet, cell.column, std::stoi(what.substr(1)));
    case 'a':
        return book.setActiveCell(sheet, cell);
    default:
        return book.setValue(sheet, cell, valueOf(what));
    }
}

void change(Workbook& book, const char* listing) {
    std::ifstream lines(listing);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        int sheet = 0;
        CellRef cell;
        std::string what;
        fields >> sheet >> cell.row >> cell.column >> std::ws;
        std::getline(fields, what);
        set(book, sheet, cell, what);
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count != 5) return 2;
    try {
        const std::string file = arguments[1];
        Workbook book = file == "new" ? Workbook::create(u"List") : Workbook::open(read(arguments[1]));
        write(arguments[3], book.save());
        change(book, arguments[2]);
        write(arguments[4], book.save());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", arguments[1], error.what());
        return 1;
    }
    return 0;
}
