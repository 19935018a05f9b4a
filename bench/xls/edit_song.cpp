// The engine as a whole process, for comparison with other programs:
// edit_song make ROWS FILE | edit IN OUT | read FILE
#include "bench/xls/Songs.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

using namespace zvonika::xls;
using namespace zvonika::bench;

namespace {

int readAll(const char* path) {
    const Workbook song = Workbook::open(readFile(path));
    std::size_t cells = 0;
    double sum = 0;
    for (int sheet = 0; sheet < song.sheetCount(); ++sheet)
        song.forEachValue(sheet, [&](CellRef, const Value& value) {
            ++cells;
            if (const auto* number = std::get_if<double>(&value)) sum += *number;
            if (const auto* text = std::get_if<std::u16string>(&value)) sum += double(text->size());
        });
    std::printf("%zu cells %.17g\n", cells, sum);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "make" && argc == 4) {
        const Workbook song = makeSong(std::atoi(argv[2]));
        writeFile(argv[3], song.image());
    } else if (what == "edit" && argc == 4) {
        Workbook song = Workbook::open(readFile(argv[2]));
        changeTenCells(song);
        writeFile(argv[3], song.image());
    } else if (what == "read" && argc == 3) {
        return readAll(argv[2]);
    } else {
        std::fprintf(stderr, "edit_song make ROWS FILE | edit IN OUT | read FILE\n");
        return 2;
    }
    return 0;
}
