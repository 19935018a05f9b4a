#pragma once

#include "spreadsheet/xls/book/WorkbookModel.h"
#include "spreadsheet/xls/records/PatchedStream.h"
#include "spreadsheet/xls/strings/StringTableWriter.h"

#include <vector>

namespace zvonika::xls {

/// Adds the texts that are new to the shared string table and keeps its counts and its index right. Used
/// once.
class SharedStringsPatch {
public:
    /// `used`: which of the pool's texts cells refer to.
    SharedStringsPatch(const WorkbookModel& model, const TextPool& pool, const std::vector<bool>& used);

    /// Index of a used text in the table that is written.
    std::uint32_t index(std::uint32_t poolId) const { return indexes_[poolId]; }

    /// `references`: how many cells refer to the table now.
    void apply(std::uint32_t references, PatchList& patches);
    /// Fills in the offsets of the index in the new stream.
    void fix(PatchedStream& out) const;

private:
    void layOut();
    void createTable(std::uint32_t references, PatchList& patches) const;
    void appendTexts(PatchList& patches) const;
    void patchIndex(PatchList& patches) const;
    std::uint32_t newSize() const;

    const WorkbookModel& model_;
    std::vector<std::uint32_t> indexes_;
    std::vector<const std::u16string*> fresh_;
    StringTableWriter writer_;
    std::vector<StringTableWriter::Place> places_; ///< of the fresh texts
};

} // namespace zvonika::xls
