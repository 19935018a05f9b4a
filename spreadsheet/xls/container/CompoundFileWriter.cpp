#include "spreadsheet/xls/container/CompoundFileWriter.h"

#include "spreadsheet/xls/container/CompoundFormat.h"
#include "spreadsheet/xls/container/DirectoryTree.h"

#include <algorithm>

namespace zvonika::xls {

using namespace CompoundFormat;

CompoundFileWriter::CompoundFileWriter(const CompoundFile& source)
    : source_(source), fat_(source.fat_), fatSectors_(source.fatSectors_),
      difatSectors_(source.difatSectors_), used_(source.used_), sectorCount_(source.sectorsInFile()) {}

void CompoundFileWriter::replaceStream(std::uint32_t entry, std::shared_ptr<const ByteSource> contents) {
    contents_ = std::move(contents);
    const std::size_t size = std::max<std::size_t>(contents_->size(), source_.miniCutoff_);
    const std::size_t sectors = (size + sectorSize() - 1) / sectorSize();
    endMiniStream();
    markOtherStreams(entry);
    chain_ = releaseOldStream(entry);
    resizeChain(chain_, sectors);
    std::uint8_t* directoryEntry = changing(source_.entryOffset(entry));
    store32(directoryEntry + Entry::firstSector, chain_.front());
    store64(directoryEntry + Entry::size, size);
    writeTables();
}

void CompoundFileWriter::rename(std::uint32_t entry, const std::string& name) {
    const auto bytesOf = [this](std::uint32_t number) { return changing(source_.entryOffset(number)); };
    DirectoryTree(source_.rootMembers(), bytesOf).rename(entry, name);
}

FileImage CompoundFileWriter::take() {
    CompoundFile::Chain blocks(chain_);
    for (std::uint32_t& block : blocks)
        ++block;
    return {source_.file_, source_.sectorShift_, std::size_t{sectorCount_} + 1, std::move(changed_),
            blocks,        std::move(contents_)};
}

std::uint8_t* CompoundFileWriter::changing(std::size_t offset) {
    const std::size_t block = offset / sectorSize();
    const auto [place, isNew] = changed_.try_emplace(block);
    if (isNew) {
        const ByteView file = source_.file_;
        const std::size_t begin = std::min(block * sectorSize(), file.size());
        const ByteView old = file.subspan(begin, std::min<std::size_t>(sectorSize(), file.size() - begin));
        place->second.assign(old.begin(), old.end());
        place->second.resize(sectorSize());
    }
    return &place->second[offset % sectorSize()];
}

/// Where a writer let the mini stream run on into the next stream, two chains would go through the sectors
/// that are laid out anew; strict readers refuse that.
void CompoundFileWriter::endMiniStream() {
    if (!source_.miniStreamSectors_.empty()) fat_[source_.miniStreamSectors_.back()] = endOfChain;
}

void CompoundFileWriter::markOtherStreams(std::uint32_t replaced) {
    for (std::uint32_t entry = 0; entry < source_.entryCount(); ++entry) {
        const std::uint8_t* bytes = &source_.file_[source_.entryOffset(entry)];
        if (entry == replaced || bytes[Entry::type] != Entry::stream || source_.isInMiniStream(entry))
            continue;
        markChain(load32(bytes + Entry::firstSector), source_.sectorsFor(source_.streamSize(entry)));
    }
}

/// Ends at a sector that is marked already, so that entries which share a chain cost no more than one.
void CompoundFileWriter::markChain(std::uint32_t sector, std::uint64_t most) {
    for (; most > 0 && sector < used_.size() && !used_[sector]; --most) {
        used_[sector] = true;
        sector = sector < source_.fat_.size() ? source_.fat_[sector] : endOfChain;
    }
}

CompoundFile::Chain CompoundFileWriter::releaseOldStream(std::uint32_t entry) {
    if (!source_.isInMiniStream(entry)) return source_.streamChain(entry);
    const std::uint32_t perSector = sectorSize() / 4;
    for (const std::uint32_t sector : source_.miniChain(entry)) {
        const std::size_t table = offsetOf(source_.miniFatSectors_[sector / perSector]);
        store32(changing(table + 4 * std::size_t{sector % perSector}), freeSector);
    }
    return {};
}

void CompoundFileWriter::resizeChain(CompoundFile::Chain& chain, std::size_t sectors) {
    while (chain.size() > sectors) {
        fat_[chain.back()] = freeSector;
        chain.pop_back();
    }
    // A table that calls the last sector free must not have it given out again.
    if (!chain.empty()) fat_[chain.back()] = endOfChain;
    if (chain.size() < sectors) growTable(sectors - chain.size());
    while (chain.size() < sectors) {
        const std::uint32_t sector = allocate();
        fat_[sector] = endOfChain; // taken; linked below
        chain.push_back(sector);
    }
    for (std::size_t i = 0; i + 1 < chain.size(); ++i)
        fat_[chain[i]] = chain[i + 1];
    fat_[chain.back()] = endOfChain;
}

/// A table may call free what the container's own structures stand in, or the last sector of a stream.
bool CompoundFileWriter::isFree(std::uint32_t sector) const {
    return fat_[sector] == freeSector && (sector >= used_.size() || !used_[sector]);
}

std::uint32_t CompoundFileWriter::covered() const {
    return static_cast<std::uint32_t>(std::min<std::size_t>(sectorCount_, fat_.size()));
}

/// Makes room in the table before sectors are appended, so that these come to stand in one piece.
void CompoundFileWriter::growTable(std::size_t sectors) {
    for (std::uint32_t sector = 0; sector < covered() && sectors > 0; ++sector)
        sectors -= isFree(sector);
    if (sectors > 0) coverByFat(sectors);
}

std::uint32_t CompoundFileWriter::allocate() {
    while (nextFree_ < covered() && !isFree(nextFree_))
        ++nextFree_;
    return nextFree_ < covered() ? nextFree_ : sectorCount_++;
}

std::uint32_t CompoundFileWriter::appendTableSector() {
    changed_[std::size_t{sectorCount_} + 1].assign(sectorSize(), 0xFF);
    return sectorCount_++;
}

void CompoundFileWriter::coverByFat(std::size_t more) {
    if (fat_.size() >= sectorCount_ + more) return;
    while (fat_.size() < sectorCount_ + more) {
        const std::uint32_t sector = appendTableSector();
        fat_.resize(fat_.size() + sectorSize() / 4, freeSector);
        fatSectors_.push_back(sector);
        listFatSector(sector, fatSectors_.size() - 1);
    }
    // Table sectors may lie beyond what their own table covers until the loop ends.
    for (const std::uint32_t sector : fatSectors_)
        if (sector < fat_.size()) fat_[sector] = fatSector;
    for (const std::uint32_t sector : difatSectors_)
        if (sector < fat_.size()) fat_[sector] = difatSector;
}

void CompoundFileWriter::listFatSector(std::uint32_t sector, std::size_t index) {
    const std::size_t slot = difatSlot(index);
    store32(changing(slot), sector);
    store32(changing(Header::fatSectors), static_cast<std::uint32_t>(fatSectors_.size()));
}

std::size_t CompoundFileWriter::difatSlot(std::size_t index) {
    if (index < headerDifatEntries) return Header::difat + 4 * index;
    const std::size_t perSector = sectorSize() / 4 - 1;
    const std::size_t number = (index - headerDifatEntries) / perSector;
    if (number == difatSectors_.size()) {
        const std::uint32_t sector = appendTableSector();
        store32(changing(offsetOf(sector) + 4 * perSector), endOfChain);
        const std::size_t link = difatSectors_.empty() ? std::size_t{Header::firstDifatSector}
                                                       : offsetOf(difatSectors_.back()) + 4 * perSector;
        store32(changing(link), sector);
        difatSectors_.push_back(sector);
        store32(changing(Header::difatSectors), static_cast<std::uint32_t>(difatSectors_.size()));
    }
    return offsetOf(difatSectors_[number]) + 4 * ((index - headerDifatEntries) % perSector);
}

void CompoundFileWriter::writeTables() {
    const std::size_t perSector = sectorSize() / 4;
    for (std::size_t i = 0; i < fat_.size(); i += perSector) {
        std::uint8_t* table = changing(offsetOf(fatSectors_[i / perSector]));
        for (std::size_t j = 0; j < perSector; ++j)
            store32(table + 4 * j, fat_[i + j]);
    }
}

} // namespace zvonika::xls
