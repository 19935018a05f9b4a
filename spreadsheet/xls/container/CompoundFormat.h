#pragma once

#include <cstddef>
#include <cstdint>

/// Numbers of the OLE2 compound file format ([MS-CFB]).
namespace zvonika::xls::CompoundFormat {

constexpr std::size_t headerSize = 512;
constexpr std::size_t entrySize = 128;
constexpr std::size_t headerDifatEntries = 109;
constexpr std::uint32_t miniSectorSize = 64;

constexpr std::uint32_t lastRegularSector = 0xFFFFFFFA;
constexpr std::uint32_t difatSector = 0xFFFFFFFC;
constexpr std::uint32_t fatSector = 0xFFFFFFFD;
constexpr std::uint32_t endOfChain = 0xFFFFFFFE;
constexpr std::uint32_t freeSector = 0xFFFFFFFF;
constexpr std::uint32_t noEntry = 0xFFFFFFFF;

namespace Header {
constexpr std::size_t minorVersion = 24;
constexpr std::size_t majorVersion = 26;
constexpr std::size_t byteOrder = 28;
constexpr std::size_t sectorShift = 30;
constexpr std::size_t miniSectorShift = 32;
constexpr std::size_t fatSectors = 44;
constexpr std::size_t firstDirectorySector = 48;
constexpr std::size_t miniStreamCutoff = 56;
constexpr std::size_t firstMiniFatSector = 60;
constexpr std::size_t firstDifatSector = 68;
constexpr std::size_t difatSectors = 72;
constexpr std::size_t difat = 76;
} // namespace Header

namespace Entry {
constexpr std::size_t nameSize = 64; ///< bytes of the name with its terminating zero, as a 16-bit number
constexpr std::size_t type = 66;
constexpr std::size_t colour = 67;
constexpr std::size_t left = 68;
constexpr std::size_t right = 72;
constexpr std::size_t child = 76;
constexpr std::size_t classId = 80;
constexpr std::size_t firstSector = 116;
constexpr std::size_t size = 120;
constexpr std::uint8_t stream = 2;
constexpr std::uint8_t root = 5;
} // namespace Entry

} // namespace zvonika::xls::CompoundFormat
