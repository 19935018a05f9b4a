#pragma once

#include "spreadsheet/xls/container/CompoundFile.h"
#include "spreadsheet/xls/container/FileImage.h"

#include <memory>
#include <string>

namespace zvonika::xls {

/// Rewrites one stream of a compound file, without copying the others: sectors are kept, freed, taken from
/// the free ones or appended; the tables grow with them. Used once.
class CompoundFileWriter {
public:
    explicit CompoundFileWriter(const CompoundFile& source);
    void replaceStream(std::uint32_t entry, std::shared_ptr<const ByteSource> contents);
    /// Gives a stream another ASCII name of at most 31 characters, which no other stream has.
    void rename(std::uint32_t entry, const std::string& name);
    FileImage take();

private:
    void endMiniStream();
    /// Marks the sectors of all streams but `replaced`, whatever the table says of them.
    void markOtherStreams(std::uint32_t replaced);
    void markChain(std::uint32_t sector, std::uint64_t most);
    CompoundFile::Chain releaseOldStream(std::uint32_t entry);
    void resizeChain(CompoundFile::Chain& chain, std::size_t sectors);
    std::uint32_t allocate();
    std::uint32_t appendTableSector();
    bool isFree(std::uint32_t sector) const;
    std::uint32_t covered() const; ///< sectors that there are and that the table tells of
    void growTable(std::size_t sectors);
    /// Extends the table so that it tells of all sectors and of `more` to come.
    void coverByFat(std::size_t more);
    void listFatSector(std::uint32_t sector, std::size_t index);
    std::size_t difatSlot(std::size_t index);
    void writeTables();
    /// A byte of the header, of a table or of a directory entry, to be changed there.
    std::uint8_t* changing(std::size_t offset);

    std::size_t offsetOf(std::uint32_t sector) const { return source_.sectorOffset(sector); }
    std::uint32_t sectorSize() const { return source_.sectorSize(); }

    const CompoundFile& source_;
    FileImage::Blocks changed_; ///< the header is block 0, sector n block n + 1
    CompoundFile::Chain chain_; ///< of the replaced stream
    std::shared_ptr<const ByteSource> contents_;
    std::vector<std::uint32_t> fat_;
    CompoundFile::Chain fatSectors_;
    CompoundFile::Chain difatSectors_;
    std::vector<bool> used_; ///< sectors never to be given out; none of the replaced stream
    std::uint32_t sectorCount_;
    std::uint32_t nextFree_ = 0;
};

} // namespace zvonika::xls
