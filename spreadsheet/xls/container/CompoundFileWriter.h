#pragma once

#include "spreadsheet/xls/container/CompoundFile.h"

namespace zvonika::xls {

/// Rewrites one stream of a compound file in a copy of its bytes: sectors are kept, freed, taken from the
/// free ones or appended; the tables grow with them. Used once.
class CompoundFileWriter {
public:
    explicit CompoundFileWriter(const CompoundFile& source);
    CompoundFile::Bytes replaceStream(std::uint32_t entry, ByteView contents);

private:
    void endMiniStream();
    /// Marks the sectors of all streams but `replaced`, whatever the table says of them.
    void markOtherStreams(std::uint32_t replaced);
    void markChain(std::uint32_t sector, std::uint64_t most);
    CompoundFile::Chain releaseOldStream(std::uint32_t entry);
    void resizeChain(CompoundFile::Chain& chain, std::size_t sectors);
    std::uint32_t allocate();
    std::uint32_t appendSector(std::uint8_t fill);
    bool isFree(std::uint32_t sector) const;
    std::uint32_t covered() const; ///< sectors that there are and that the table tells of
    void growTable(std::size_t sectors);
    /// Extends the table so that it tells of all sectors and of `more` to come.
    void coverByFat(std::size_t more);
    void listFatSector(std::uint32_t sector, std::size_t index);
    std::size_t difatSlot(std::size_t index);
    void writeContents(const CompoundFile::Chain& chain, ByteView contents);
    void writeTables();

    std::size_t offsetOf(std::uint32_t sector) const { return source_.sectorOffset(sector); }
    std::uint32_t sectorSize() const { return source_.sectorSize(); }

    const CompoundFile& source_;
    CompoundFile::Bytes out_;
    std::vector<std::uint32_t> fat_;
    CompoundFile::Chain fatSectors_;
    CompoundFile::Chain difatSectors_;
    std::vector<bool> used_; ///< sectors never to be given out; none of the replaced stream
    std::uint32_t sectorCount_;
    std::uint32_t nextFree_ = 0;
};

} // namespace zvonika::xls
