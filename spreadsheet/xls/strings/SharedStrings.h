#pragma once

#include "spreadsheet/xls/records/Endian.h"
#include "spreadsheet/xls/strings/TextPool.h"

#include <optional>
#include <string>
#include <vector>

namespace zvonika::xls {

/// The shared string table of a workbook: its extent is checked at once, its texts are decoded when asked
/// for. Refers to the stream's bytes, which must outlive it.
class SharedStrings {
public:
    /// A workbook without a table.
    SharedStrings() = default;
    /// The table whose Sst record stands at `offset`. Throws FormatError.
    SharedStrings(ByteView stream, std::uint32_t offset);

    std::uint32_t size() const { return static_cast<std::uint32_t>(starts_.size()); }
    /// Puts the text without its formatting into `text`. `index` < size().
    void read(std::uint32_t index, std::u16string& text) const;

    /// Looks for the pool's texts among the unformatted ones: result[id of the pool] is an index here or
    /// none.
    std::vector<std::optional<std::uint32_t>> find(const TextPool& pool) const;

    /// Where a text begins, in the stream and behind the start of its record's header.
    std::uint32_t start(std::uint32_t index) const { return starts_[index]; }
    std::uint32_t startInRecord(std::uint32_t index) const;
    /// Where the last text ends, and the record (Sst or Continue) it ends in.
    std::uint32_t textsEnd() const { return textsEnd_; }
    std::uint32_t lastRecordOffset() const { return lastRecordOffset_; }
    /// End of the last Continue record.
    std::uint32_t end() const { return end_; }

private:
    void findChunks();
    void findTexts(std::uint32_t count);
    std::uint32_t chunkEnd(std::uint32_t position) const;
    const std::uint8_t* plainUnits(std::uint32_t index, std::size_t& units, bool& wide) const;

    ByteView stream_;
    std::uint32_t recordOffset_ = 0;
    std::uint32_t textsEnd_ = 0;
    std::uint32_t lastRecordOffset_ = 0;
    std::uint32_t end_ = 0;
    std::vector<std::uint32_t> starts_;    ///< offset of each text
    std::vector<std::uint32_t> chunkEnds_; ///< ends of the payloads of Sst and its Continue records
};

} // namespace zvonika::xls
