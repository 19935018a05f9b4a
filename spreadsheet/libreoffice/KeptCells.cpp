#include "spreadsheet/libreoffice/KeptCells.h"

#include <algorithm>

namespace zvonika {

namespace {

bool continues(const PlacedBlock& block, const PlacedBlock& run) {
    return block.first.column == run.first.column && block.cells.first().size() == run.cells.first().size() &&
           block.first.row + block.cells.size() == run.first.row;
}

} // namespace

QVector<PlacedBlock> KeptCells::blocks() const {
    QVector<PlacedBlock> blocks;
    for (auto row = rows_.cbegin(); row != rows_.cend(); ++row)
        for (const PlacedBlock& run : runs(row.key(), row.value())) {
            const auto above = std::find_if(blocks.begin(), blocks.end(),
                                            [&](const PlacedBlock& block) { return continues(block, run); });
            if (above == blocks.end())
                blocks.push_back(run);
            else
                above->cells.push_back(run.cells.first());
        }
    return blocks;
}

/// The stretches of a row without a gap.
QVector<PlacedBlock> KeptCells::runs(int row, const Row& cells) {
    QVector<PlacedBlock> runs;
    int next = 0; // the column that goes on with the last run
    for (auto cell = cells.cbegin(); cell != cells.cend(); ++cell) {
        if (cell.key() != next) runs.push_back({{row, cell.key()}, {{}}});
        runs.last().cells.first().push_back(cell.value());
        next = cell.key() + 1;
    }
    return runs;
}

} // namespace zvonika
