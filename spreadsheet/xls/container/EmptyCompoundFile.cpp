#include "spreadsheet/xls/container/CompoundFile.h"
#include "spreadsheet/xls/container/CompoundFormat.h"

#include <algorithm>

namespace zvonika::xls {

using namespace CompoundFormat;

namespace {

constexpr std::size_t sector = 512;
constexpr std::size_t fatAt = sector;
constexpr std::size_t directoryAt = 2 * sector;

void writeHeader(std::uint8_t* header) {
    constexpr std::uint8_t signature[] = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
    std::ranges::copy(signature, header);
    store16(header + Header::minorVersion, 0x003E);
    store16(header + Header::majorVersion, 3);
    store16(header + Header::byteOrder, 0xFFFE);
    store16(header + Header::sectorShift, 9);
    store16(header + Header::miniSectorShift, 6);
    store32(header + Header::fatSectors, 1);
    store32(header + Header::firstDirectorySector, 1);
    store32(header + Header::miniStreamCutoff, 4096);
    store32(header + Header::firstMiniFatSector, endOfChain);
    store32(header + Header::firstDifatSector, endOfChain);
    store32(header + Header::difat, 0);
    std::fill(header + Header::difat + 4, header + sector, std::uint8_t{0xFF});
}

void writeEntry(std::uint8_t* entry, const std::string& name, std::uint8_t type, std::uint32_t child) {
    for (std::size_t i = 0; i < name.size(); ++i)
        store16(entry + 2 * i, static_cast<unsigned char>(name[i]));
    store16(entry + Entry::nameSize, static_cast<std::uint32_t>(2 * (name.size() + 1)));
    entry[Entry::type] = type;
    entry[Entry::colour] = 1;
    store32(entry + Entry::left, noEntry);
    store32(entry + Entry::right, noEntry);
    store32(entry + Entry::child, child);
    store32(entry + Entry::firstSector, endOfChain);
}

void writeUnusedEntry(std::uint8_t* entry) {
    store32(entry + Entry::left, noEntry);
    store32(entry + Entry::right, noEntry);
    store32(entry + Entry::child, noEntry);
}

} // namespace

CompoundFile CompoundFile::withEmptyStream(const std::string& name) {
    Bytes file(3 * sector);
    writeHeader(file.data());
    std::fill_n(&file[fatAt], sector, std::uint8_t{0xFF});
    store32(&file[fatAt], fatSector);
    store32(&file[fatAt + 4], endOfChain);
    std::uint8_t* directory = &file[directoryAt];
    writeEntry(directory, "Root Entry", Entry::root, 1);
    constexpr std::uint8_t workbookClass[] = {0x20, 0x08, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};
    std::ranges::copy(workbookClass, directory + Entry::classId);
    writeEntry(directory + entrySize, name, Entry::stream, noEntry);
    writeUnusedEntry(directory + 2 * entrySize);
    writeUnusedEntry(directory + 3 * entrySize);
    return CompoundFile(std::move(file));
}

} // namespace zvonika::xls
