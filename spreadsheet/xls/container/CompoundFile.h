#pragma once

#include "spreadsheet/xls/container/FileImage.h"
#include "spreadsheet/xls/records/Endian.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zvonika::xls {

/// An OLE2 compound file: a small file system of sectors. Reading is bounds-checked and safe against cycles
/// and sectors used twice; memory stays proportional to the file. All members that read throw FormatError.
class CompoundFile {
public:
    using Bytes = std::vector<std::uint8_t>;
    using Chain = std::vector<std::uint32_t>; ///< sector numbers in order

    explicit CompoundFile(Bytes file);
    /// A container whose root holds one empty stream of this ASCII name (entry 1).
    static CompoundFile withEmptyStream(const std::string& name);

    const Bytes& bytes() const { return file_; }
    /// Directory entry of a stream directly under the root, whatever the case of its name.
    std::optional<std::uint32_t> findStream(const std::string& name) const;
    Bytes readStream(std::uint32_t entry) const;
    /// The stream's bytes where they stand in the file, if they stand there in one piece; valid as long as
    /// this container, also when it is moved.
    std::optional<ByteView> viewStream(std::uint32_t entry) const;
    /// The whole container with this stream's contents replaced; every other stream stays where it is.
    /// Short contents are filled up with zeros so that they need not live in the mini stream.
    Bytes withStream(std::uint32_t entry, ByteView contents) const;
    /// The same, put together when it is written. The stream gets this ASCII name of at most 31 characters;
    /// not where "" is given or a stream of that name exists.
    FileImage imageWith(std::uint32_t entry, std::shared_ptr<const ByteSource> contents,
                        const std::string& name = {}) const;

private:
    friend class CompoundFileWriter;

    void readHeader();
    void readFat();
    void readDifat();
    void addFatSector(std::uint32_t sector);
    void readDirectory();
    void readMiniFat();

    std::uint32_t sectorSize() const { return 1U << sectorShift_; }
    std::uint32_t sectorsInFile() const;
    std::size_t sectorOffset(std::uint32_t sector) const;
    std::size_t entryOffset(std::uint32_t entry) const;
    std::uint32_t entryCount() const;
    std::uint64_t streamSize(std::uint32_t entry) const;
    bool isInMiniStream(std::uint32_t entry) const { return streamSize(entry) < miniCutoff_; }
    std::string entryName(std::uint32_t entry) const;
    /// Streams and storages directly under the root, in no order.
    std::vector<std::uint32_t> rootMembers() const;

    /// Follows a chain through a sector table to its end, but not beyond `most` sectors: some writers let the
    /// chains of short streams run on into what stands behind. `firstAt`: where in the file the number of the
    /// first sector stands. `used` marks the sectors and must not have them marked already.
    Chain follow(const std::vector<std::uint32_t>& table, std::size_t firstAt, std::vector<bool>& used,
                 const char* place, std::uint64_t most = ~std::uint64_t{0}) const;
    /// Where in the file a sector's entry in this table stands.
    std::size_t linkOffset(const std::vector<std::uint32_t>& table, std::uint32_t sector) const;
    /// The sectors of a stream in the mini stream.
    Chain miniChain(std::uint32_t entry) const;
    /// Sectors that so many bytes take.
    std::uint64_t sectorsFor(std::uint64_t bytes) const { return (bytes + sectorSize() - 1) >> sectorShift_; }
    Chain streamChain(std::uint32_t entry) const;
    /// The contents of the entry's stream, which stand in these sectors.
    Bytes gather(const Chain& chain, std::uint32_t entry, const char* place) const;
    Bytes readMini(std::uint32_t entry, std::uint64_t size) const;

    Bytes file_;
    unsigned sectorShift_ = 9;
    std::uint32_t miniCutoff_ = 4096;
    std::vector<std::uint32_t> fat_;
    std::vector<std::uint32_t> miniFat_;
    Chain fatSectors_;
    Chain difatSectors_;
    Chain directorySectors_;
    Chain miniFatSectors_;
    Chain miniStreamSectors_;
    std::vector<bool> used_; ///< sectors of the container's own structures
};

} // namespace zvonika::xls
