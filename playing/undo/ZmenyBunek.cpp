#include "playing/undo/ZmenyBunek.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

bool navazuje(const CellRange& vyse, const CellRange& usek) {
    return vyse.last.row == usek.first.row - 1 && vyse.first.column == usek.first.column &&
           vyse.last.column == usek.last.column;
}

/// Neighbouring cells of one row each, in the order of reading.
std::vector<BlokBunek> useky(const HodnotyBunek& bunky) {
    std::vector<BlokBunek> useky;
    for (const auto& [bunka, hodnota] : bunky) {
        const CellPosition predchozi{bunka.row, bunka.column - 1};
        if (useky.empty() || useky.back().misto.last != predchozi)
            useky.push_back({single(bunka), {QVector<CellValue>()}});
        useky.back().misto.last = bunka;
        useky.back().hodnoty.last().append(hodnota);
    }
    return useky;
}

} // namespace

bool stejne(const CellValue& a, const CellValue& b) {
    return a == b || (isEmpty(a) && isEmpty(b));
}

std::vector<CellTurned> rozdily(const QString& list, CellPosition prvni, const CellBlock& predtim,
                                const CellBlock& potom) {
    std::vector<CellTurned> zmeny;
    for (int r = 0; r < predtim.size(); ++r)
        for (int s = 0; s < predtim.at(r).size(); ++s)
            if (!stejne(predtim.at(r).at(s), potom.at(r).at(s)))
                zmeny.push_back(
                    {list, {prvni.row + r, prvni.column + s}, predtim.at(r).at(s), potom.at(r).at(s)});
    return zmeny;
}

std::vector<BlokBunek> bloky(const HodnotyBunek& bunky) {
    std::vector<BlokBunek> bloky;
    std::map<std::pair<int, int>, std::size_t> posledni; // by columns: the block that may go on downwards
    for (BlokBunek& usek : useky(bunky)) {
        const std::pair sloupce(usek.misto.first.column, usek.misto.last.column);
        const auto vyse = posledni.find(sloupce);
        if (vyse != posledni.end() && navazuje(bloky[vyse->second].misto, usek.misto)) {
            bloky[vyse->second].misto.last.row = usek.misto.last.row;
            bloky[vyse->second].hodnoty += usek.hodnoty;
            continue;
        }
        posledni[sloupce] = bloky.size();
        bloky.push_back(std::move(usek));
    }
    return bloky;
}

CellRange okoliBunek(const HodnotyBunek& bunky) {
    CellRange okoli{bunky.begin()->first, bunky.rbegin()->first};
    for (const auto& [bunka, hodnota] : bunky) {
        okoli.first.column = std::min(okoli.first.column, bunka.column);
        okoli.last.column = std::max(okoli.last.column, bunka.column);
    }
    return okoli;
}

} // namespace zvonika
