#include "spreadsheet/xls/container/CompoundFile.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/container/CompoundFileWriter.h"
#include "spreadsheet/xls/container/CompoundFormat.h"
#include "spreadsheet/xls/container/FileKind.h"

#include <algorithm>
#include <utility>

namespace zvonika::xls {

using namespace CompoundFormat;

namespace {

[[noreturn]] void refuse(Refusal refusal, const char* place, std::size_t offset, std::string expected,
                         std::string found) {
    throw FormatError(refusal, place, offset, std::move(expected), std::move(found));
}

char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
}

bool sameName(const std::string& a, const std::string& b) {
    return std::ranges::equal(a, b, {}, asciiLower, asciiLower);
}

} // namespace

CompoundFile::CompoundFile(Bytes file) : file_(std::move(file)) {
    requireCompoundFile(file_, file_.size());
    readHeader();
    used_.resize(sectorsInFile());
    readFat();
    readDirectory();
    readMiniFat();
}

void CompoundFile::readHeader() {
    sectorShift_ = load16(&file_[Header::sectorShift]);
    miniCutoff_ = load32(&file_[Header::miniStreamCutoff]);
}

std::uint32_t CompoundFile::sectorsInFile() const {
    const std::size_t blocks = (file_.size() + sectorSize() - 1) >> sectorShift_;
    return blocks > 1 ? static_cast<std::uint32_t>(blocks - 1) : 0;
}

std::size_t CompoundFile::sectorOffset(std::uint32_t sector) const {
    return (static_cast<std::size_t>(sector) + 1) << sectorShift_;
}

void CompoundFile::addFatSector(std::uint32_t sector) {
    const std::size_t begin = sectorOffset(sector);
    if (sector >= sectorsInFile() || file_.size() - begin < sectorSize())
        refuse(Refusal::Truncated, "FAT sector", begin, "a sector within the file", "the end of the file");
    if (used_[sector]) refuse(Refusal::Damaged, "FAT sector", begin, "a sector of its own", "one used twice");
    used_[sector] = true;
    fatSectors_.push_back(sector);
    for (std::size_t at = 0; at < sectorSize(); at += 4)
        fat_.push_back(load32(&file_[begin + at]));
}

void CompoundFile::readFat() {
    const std::uint32_t count = load32(&file_[Header::fatSectors]);
    if (count > sectorsInFile())
        refuse(Refusal::Truncated, "container header", Header::fatSectors,
               "at most " + std::to_string(sectorsInFile()) + " FAT sectors", std::to_string(count));
    for (std::size_t i = 0; i < headerDifatEntries && fatSectors_.size() < count; ++i) {
        const std::uint32_t sector = load32(&file_[Header::difat + 4 * i]);
        if (sector != freeSector) addFatSector(sector);
    }
    readDifat();
}

void CompoundFile::readDifat() {
    const std::uint32_t count = load32(&file_[Header::fatSectors]);
    std::uint32_t sector = load32(&file_[Header::firstDifatSector]);
    while (fatSectors_.size() < count) {
        const std::size_t begin = sectorOffset(sector);
        if (sector >= sectorsInFile() || file_.size() - begin < sectorSize())
            refuse(Refusal::Truncated, "DIFAT sector", Header::firstDifatSector,
                   std::to_string(count) + " FAT sectors", std::to_string(fatSectors_.size()));
        if (used_[sector]) refuse(Refusal::Damaged, "DIFAT sector", begin, "an open chain", "a cycle");
        used_[sector] = true;
        difatSectors_.push_back(sector);
        const std::size_t next = begin + sectorSize() - 4;
        for (std::size_t at = begin; at < next && fatSectors_.size() < count; at += 4)
            if (const std::uint32_t fat = load32(&file_[at]); fat != freeSector) addFatSector(fat);
        sector = load32(&file_[next]);
    }
}

std::size_t CompoundFile::linkOffset(const std::vector<std::uint32_t>& table, std::uint32_t sector) const {
    const Chain& sectors = &table == &fat_ ? fatSectors_ : miniFatSectors_;
    const std::uint32_t perSector = sectorSize() / 4;
    return sectorOffset(sectors[sector / perSector]) + 4 * std::size_t{sector % perSector};
}

CompoundFile::Chain CompoundFile::follow(const std::vector<std::uint32_t>& table, std::size_t firstAt,
                                         std::vector<bool>& used, const char* place,
                                         std::uint64_t most) const {
    Chain chain;
    for (std::uint32_t sector = load32(&file_[firstAt]); sector != endOfChain && chain.size() < most;
         sector = table[sector]) {
        const auto refuseSector = [&](Refusal refusal, std::string expected) {
            const std::size_t at = chain.empty() ? firstAt : linkOffset(table, chain.back());
            refuse(refusal, place, at, std::move(expected), "sector " + std::to_string(sector));
        };
        // What was cut off is still in the table; a number that the table does not know either is a wrong
        // one.
        if (sector >= used.size() && sector < table.size() && table[sector] != freeSector)
            refuseSector(Refusal::Truncated, "a sector below " + std::to_string(used.size()));
        if (sector >= used.size() || sector >= table.size())
            refuseSector(Refusal::Damaged, "a chain of sectors");
        if (used[sector]) refuseSector(Refusal::Damaged, "a sector that is not in use");
        used[sector] = true;
        chain.push_back(sector);
    }
    return chain;
}

void CompoundFile::readDirectory() {
    directorySectors_ = follow(fat_, Header::firstDirectorySector, used_, "directory");
    for (const std::uint32_t sector : directorySectors_)
        if (file_.size() - sectorOffset(sector) < sectorSize())
            refuse(Refusal::Truncated, "directory", sectorOffset(sector), "a whole sector",
                   "the end of the file");
    if (directorySectors_.empty() || file_[entryOffset(0) + Entry::type] != Entry::root)
        refuse(Refusal::Damaged, "directory", Header::firstDirectorySector, "a root entry", "none");
}

void CompoundFile::readMiniFat() {
    const std::uint64_t size = streamSize(0);
    if (size == 0) return;
    miniFatSectors_ = follow(fat_, Header::firstMiniFatSector, used_, "mini FAT");
    miniStreamSectors_ =
        follow(fat_, entryOffset(0) + Entry::firstSector, used_, "mini stream", sectorsFor(size));
    for (const std::uint32_t sector : miniFatSectors_) {
        const std::size_t begin = sectorOffset(sector);
        if (file_.size() - begin < sectorSize())
            refuse(Refusal::Truncated, "mini FAT", begin, "a whole sector", "the end of the file");
        for (std::size_t at = 0; at < sectorSize(); at += 4)
            miniFat_.push_back(load32(&file_[begin + at]));
    }
}

std::uint32_t CompoundFile::entryCount() const {
    return static_cast<std::uint32_t>(directorySectors_.size() * (sectorSize() / entrySize));
}

std::size_t CompoundFile::entryOffset(std::uint32_t entry) const {
    const std::uint32_t perSector = sectorSize() / static_cast<std::uint32_t>(entrySize);
    return sectorOffset(directorySectors_[entry / perSector]) + (entry % perSector) * entrySize;
}

std::uint64_t CompoundFile::streamSize(std::uint32_t entry) const {
    const std::uint64_t size = load64(&file_[entryOffset(entry) + Entry::size]);
    return sectorShift_ == 9 ? size & 0xFFFFFFFF : size; // version 3 may leave rubbish in the upper half
}

std::string CompoundFile::entryName(std::uint32_t entry) const {
    const std::uint8_t* bytes = &file_[entryOffset(entry)];
    const std::size_t units = std::min<std::size_t>(load16(bytes + Entry::nameSize) / 2, 32);
    std::string name;
    for (std::size_t i = 0; i + 1 < units; ++i) {
        const std::uint16_t unit = load16(bytes + 2 * i);
        name += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return name;
}

std::vector<std::uint32_t> CompoundFile::rootMembers() const {
    std::vector<std::uint32_t> members;
    std::vector<bool> seen(entryCount());
    std::vector<std::uint32_t> open{load32(&file_[entryOffset(0) + Entry::child])};
    while (!open.empty()) {
        const std::uint32_t entry = open.back();
        open.pop_back();
        if (entry == 0 || entry >= seen.size() || seen[entry]) continue;
        seen[entry] = true;
        members.push_back(entry);
        const std::uint8_t* bytes = &file_[entryOffset(entry)];
        open.push_back(load32(bytes + Entry::left));
        open.push_back(load32(bytes + Entry::right));
    }
    return members;
}

std::optional<std::uint32_t> CompoundFile::findStream(const std::string& name) const {
    for (const std::uint32_t entry : rootMembers())
        if (file_[entryOffset(entry) + Entry::type] == Entry::stream && sameName(entryName(entry), name))
            return entry;
    return std::nullopt;
}

CompoundFile::Bytes CompoundFile::gather(const Chain& chain, std::uint32_t entry, const char* place) const {
    const std::uint64_t size = streamSize(entry);
    if (size > (static_cast<std::uint64_t>(chain.size()) << sectorShift_))
        refuse(Refusal::Damaged, place, entryOffset(entry) + Entry::size, std::to_string(size) + " bytes",
               std::to_string(chain.size()) + " sectors");
    Bytes out;
    out.reserve(static_cast<std::size_t>(size));
    for (std::size_t i = 0, next = 0; i < chain.size(); i = next) {
        // Sectors that follow each other are taken at once.
        for (next = i + 1; next < chain.size() && chain[next] == chain[next - 1] + 1;)
            ++next;
        const std::size_t begin = sectorOffset(chain[i]);
        const std::size_t wanted =
            std::min<std::size_t>(static_cast<std::size_t>(size) - out.size(), (next - i) << sectorShift_);
        if (file_.size() - begin < wanted)
            refuse(Refusal::Truncated, place, begin, std::to_string(wanted) + " bytes",
                   "the end of the file");
        const auto from = file_.begin() + static_cast<std::ptrdiff_t>(begin);
        out.insert(out.end(), from, from + static_cast<std::ptrdiff_t>(wanted));
    }
    return out;
}

CompoundFile::Chain CompoundFile::miniChain(std::uint32_t entry) const {
    std::vector<bool> used(miniFat_.size());
    const std::uint64_t most = (streamSize(entry) + miniSectorSize - 1) / miniSectorSize;
    return follow(miniFat_, entryOffset(entry) + Entry::firstSector, used, "mini stream chain", most);
}

CompoundFile::Bytes CompoundFile::readMini(std::uint32_t entry, std::uint64_t size) const {
    const Bytes mini = gather(miniStreamSectors_, 0, "mini stream");
    Bytes out;
    for (const std::uint32_t sector : miniChain(entry)) {
        const std::size_t begin = static_cast<std::size_t>(sector) * miniSectorSize;
        const std::size_t wanted =
            std::min<std::size_t>(static_cast<std::size_t>(size) - out.size(), miniSectorSize);
        if (begin + wanted > mini.size()) break;
        const auto from = mini.begin() + static_cast<std::ptrdiff_t>(begin);
        out.insert(out.end(), from, from + static_cast<std::ptrdiff_t>(wanted));
    }
    if (out.size() != size)
        refuse(Refusal::Damaged, "mini stream", entryOffset(entry) + Entry::size,
               std::to_string(size) + " bytes", std::to_string(out.size()));
    return out;
}

CompoundFile::Bytes CompoundFile::readStream(std::uint32_t entry) const {
    const std::uint64_t size = streamSize(entry);
    if (isInMiniStream(entry)) return readMini(entry, size);
    return gather(streamChain(entry), entry, "stream");
}

CompoundFile::Chain CompoundFile::streamChain(std::uint32_t entry) const {
    std::vector<bool> used = used_;
    return follow(fat_, entryOffset(entry) + Entry::firstSector, used, "stream",
                  sectorsFor(streamSize(entry)));
}

std::optional<ByteView> CompoundFile::viewStream(std::uint32_t entry) const {
    const std::uint64_t size = streamSize(entry);
    if (isInMiniStream(entry)) return std::nullopt;
    const Chain chain = streamChain(entry);
    const auto broken = std::ranges::adjacent_find(chain, [](auto a, auto b) { return b != a + 1; });
    if (chain.empty() || broken != chain.end() || size > file_.size()) return std::nullopt;
    const std::size_t begin = sectorOffset(chain.front());
    const bool whole = begin + size <= file_.size() && size <= chain.size() << sectorShift_;
    return whole ? std::optional(ByteView(file_).subspan(begin, static_cast<std::size_t>(size)))
                 : std::nullopt;
}

CompoundFile::Bytes CompoundFile::withStream(std::uint32_t entry, ByteView contents) const {
    return imageWith(entry, std::make_shared<ByteViewSource>(contents)).bytes();
}

FileImage CompoundFile::imageWith(std::uint32_t entry, std::shared_ptr<const ByteSource> contents,
                                  const std::string& name) const {
    CompoundFileWriter writer(*this);
    writer.replaceStream(entry, std::move(contents));
    if (!name.empty() && !findStream(name)) writer.rename(entry, name);
    return writer.take();
}

} // namespace zvonika::xls
