#pragma once

#include "spreadsheet/xls/writer/SheetPatch.h"

#include <map>
#include <span>
#include <vector>

namespace zvonika::xls {

/// Adds cells that have no record yet, with Row records and row blocks as the sheet has them. Used once.
class CellInsertion {
public:
    explicit CellInsertion(SheetPatch& patch);
    /// `cells`: sorted, none of them in the sheet, none blank.
    void insert(std::span<const CellChange> cells);

private:
    using RowCells = std::span<const CellChange>; ///< cells of one row

    void insertRow(RowCells cells);
    void insertIntoKnownRow(RowCells cells);
    void insertNewRow(RowCells cells);
    void insertNewRowIntoBlock(RowCells cells, const RowBlock& block);
    void insertCells(RowCells cells, std::uint32_t floor, std::uint32_t limit);
    void insertNewBlocks();
    void insertNewBlock(std::span<const RowCells> rows);

    std::uint32_t cellPosition(CellKey key, std::uint32_t floor, std::uint32_t limit) const;
    /// Whether a record stands in the block that ends with this DbCell record; true for no limit.
    bool isWithin(std::uint32_t limit, std::uint32_t offset) const;
    /// True for a Row record without another Row record before or behind it.
    bool standsAlone(const RowSlot& slot) const;
    std::uint32_t endOfRowRun(std::uint32_t rowRecord);
    void extendRow(const RowSlot& row, RowCells cells);
    std::vector<std::uint8_t> rowRecord(RowCells cells) const;
    SmallRecord cellRecord(const CellChange& cell) const;
    std::uint16_t formatFor(CellKey key) const;

    bool hasCells(std::uint32_t row) const;
    const RowBlock* blockForRow(std::uint32_t row) const;
    const RowBlock* firstBlockBehind(std::uint32_t row) const;
    /// Number of the 32-row block that a row belongs to, counted from the sheet's first row.
    int blockNumber(std::uint32_t row) const;

    SheetPatch& patch_;
    const SheetLayout& layout_;
    bool usesRows_;
    bool usesBlocks_;
    std::uint32_t baseRow_ = 0;
    std::vector<const RowBlock*> blocksByRow_;
    std::map<int, std::vector<RowCells>> newBlocks_;
    std::uint32_t runBegin_ = 0; ///< the run of Row records looked at last
    std::uint32_t runEnd_ = 0;
};

} // namespace zvonika::xls
