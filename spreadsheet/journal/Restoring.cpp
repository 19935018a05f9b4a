#include "spreadsheet/journal/Restoring.h"

#include <map>

namespace zvonika {

namespace {

/// A block to write with one call.
struct Piece {
    CellPosition first;
    CellBlock block;

    int columns() const { return static_cast<int>(block.first().size()); }
    /// The row behind it, over the same columns.
    bool continuedBy(const Piece& next) const {
        return next.first.column == first.column && next.columns() == columns() &&
               next.first.row == first.row + static_cast<int>(block.size());
    }
};

/// Cells of one sheet, row by row, as runs of neighbours.
std::vector<Piece> runs(const std::vector<CellWritten>& cells) {
    std::vector<Piece> found;
    for (const CellWritten& cell : cells) {
        const bool goesOn = !found.empty() && found.back().first.row == cell.cell.row &&
                            found.back().first.column + found.back().columns() == cell.cell.column;
        if (goesOn)
            found.back().block.first().append(cell.value);
        else
            found.push_back({cell.cell, {{cell.value}}});
    }
    return found;
}

/// Runs over the same columns of rows that follow each other become one.
std::vector<Piece> pieces(const std::vector<CellWritten>& cells) {
    std::vector<Piece> found;
    std::map<int, std::size_t> lastAt; ///< by the first column
    for (Piece& run : runs(cells)) {
        const auto last = lastAt.find(run.first.column);
        if (last != lastAt.end() && found[last->second].continuedBy(run)) {
            found[last->second].block.append(run.block.first());
            continue;
        }
        lastAt[run.first.column] = found.size();
        found.push_back(std::move(run));
    }
    return found;
}

int cellsOf(const Piece& piece) {
    return static_cast<int>(piece.block.size()) * piece.columns();
}

} // namespace

// A spreadsheet that has gone refuses everything; that is not a refusal of these changes.
bool Restoring::done(const std::function<void()>& call) {
    try {
        call();
        return true;
    } catch (const AutomationError& refusal) {
        if (refusal.number() == error::objectNotSet) throw;
        return false;
    }
}

int Restoring::write(const WorkbookImage& now, const std::vector<JournalChange>& changes) {
    int refused = 0;
    std::map<int, std::vector<CellWritten>> bySheet;
    QVector<SheetImage> sheets = now.sheets;
    for (const JournalChange& change : changes) {
        if (const auto* cell = std::get_if<CellWritten>(&change)) bySheet[cell->sheet].push_back(*cell);
        const auto* named = std::get_if<SheetRenamed>(&change);
        if (!named) continue;
        QString& name = sheets[named->sheet - 1].name;
        const bool taken = done([&] {
            live_.selectSheet(name);
            live_.renameActiveSheet(named->name);
        });
        if (taken) name = named->name;
        refused += taken ? 0 : 1;
    }
    for (const auto& [sheet, cells] : bySheet)
        refused += writeSheet(sheets.at(sheet - 1).name, cells);
    return refused;
}

int Restoring::writeSheet(const QString& name, const std::vector<CellWritten>& cells) {
    if (!done([&] { live_.selectSheet(name); })) return static_cast<int>(cells.size());
    int refused = 0;
    for (const Piece& piece : pieces(cells))
        if (!done([&] { live_.writeBlock(absoluteAddress(piece.first), piece.block); }))
            refused += cellsOf(piece);
    return refused;
}

void Restoring::showRow(const WorkbookImage& now, const CellWritten& cell) {
    if (!now.hasSheet(cell.sheet)) return;
    done([&] {
        live_.selectSheet(now.sheets.at(cell.sheet - 1).name);
        live_.selectRange(QStringLiteral("B%1").arg(cell.cell.row));
    });
}

} // namespace zvonika
