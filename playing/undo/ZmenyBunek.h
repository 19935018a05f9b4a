#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/StepKeeper.h"

#include <map>

namespace zvonika {

struct PoradiBunek {
    bool operator()(CellPosition a, CellPosition b) const {
        return a.row != b.row ? a.row < b.row : a.column < b.column;
    }
};

/// Values of single cells of a sheet.
using HodnotyBunek = std::map<CellPosition, CellValue, PoradiBunek>;

/// A rectangle of cells with its values.
struct BlokBunek {
    CellRange misto;
    CellBlock hodnoty;
};

/// The two show the same: nothing and the empty text are one.
bool stejne(const CellValue& a, const CellValue& b);

/// What has changed in a block of a sheet, cell by cell. Both of the same size, first cell at `prvni`.
std::vector<CellTurned> rozdily(const QString& list, CellPosition prvni, const CellBlock& predtim,
                                const CellBlock& potom);

/// Exactly these cells in rectangles, few of them.
std::vector<BlokBunek> bloky(const HodnotyBunek& bunky);

/// The rectangle around all of them; there is one at least.
CellRange okoliBunek(const HodnotyBunek& bunky);

} // namespace zvonika
