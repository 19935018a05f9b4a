#include "spreadsheet/embedded/ui/SongColumns.h"

namespace zvonika {

namespace {

struct Range {
    char first;
    char last;
    SongColumn column;
};

constexpr Range ranges[] = {
    {'A', 'A', {"slabika", "Slabika textu, která se na tento hmat zpívá. Píše se přímo sem.", 110}},
    {'B', 'H', {"tón", "Tóny pravé ruky, nejvýše sedm; každý v jedné buňce.", 52}},
    {'I', 'I', {"měch", "Směr měchu: Tah, nebo Tlak.", 52}},
    {'J', 'L', {"", "Volný sloupec pro vlastní poznámky.", 24}},
    {'M', 'S', {"bas", "Basy levé ruky, nejvýše sedm; každý v jedné buňce.", 48}},
    {'T', 'T', {"", "Maže se spolu s basy.", 24}},
    {'U', 'U', {"", "Volný sloupec pro vlastní poznámky.", 24}},
    {'V', 'V', {"prstoklad", "Prstoklad hmatu.", 90}},
    {'W', 'W', {"tónina", "Tónina, ve které je hmat zapsán.", 80}},
};
constexpr SongColumn foreign{"", "", 64};

} // namespace

const SongColumn& songColumn(int column) {
    for (const auto& range : ranges)
        if (column > range.first - 'A' && column <= range.last - 'A' + 1) return range.column;
    return foreign;
}

} // namespace zvonika
