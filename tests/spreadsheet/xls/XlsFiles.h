#pragma once

#include "spreadsheet/xls/Workbook.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Files and records for the engine's tests, read and made without the engine's own record code.
namespace xlstest {

using zvonika::xls::Bytes;
using zvonika::xls::Workbook;

struct Rec {
    std::uint16_t id = 0;
    Bytes data;
    std::uint32_t offset = 0; ///< in the stream it was read from
    std::uint16_t u16(std::size_t at) const {
        return static_cast<std::uint16_t>(data[at] | data[at + 1] << 8);
    }
    std::uint32_t u32(std::size_t at) const {
        return u16(at) | static_cast<std::uint32_t>(u16(at + 2)) << 16;
    }
    friend bool operator==(const Rec& a, const Rec& b) { return a.id == b.id && a.data == b.data; }
};

Bytes readFixture(const std::string& name);

/// Little-endian bytes: `le(2, {1, 2})` gives 01 00 02 00.
Bytes le(int size, const std::vector<std::uint64_t>& values);
Bytes operator+(Bytes a, const Bytes& b);

/// The workbook stream of a file, and a file around a workbook stream.
Bytes streamOf(const Bytes& file);
Bytes fileAround(const Bytes& stream);

std::vector<Rec> recordsOf(const Bytes& file);
Bytes bytesOf(const std::vector<Rec>& records);
/// The records that stand between Dimensions and the next record that is neither row, cell nor DbCell.
std::vector<Rec> tableOf(const Bytes& file);
const Rec* find(const std::vector<Rec>& records, std::uint16_t id);

/// The file of a workbook with one sheet whose records have been added or taken away: what says where the
/// sheet begins is put right.
Bytes moved(std::vector<Rec> records);

/// A new workbook's file with these records where its cells belong.
Bytes fileWithTable(const std::vector<Rec>& records);
Rec numberCell(int row, int column, double number, int format = 15);

/// The record that describes these rows and cells as one block.
Rec dbCellOf(const std::vector<Rec>& table);

/// Checks every stream offset of BoundSheet, Index and DbCell; returns what is wrong, or nothing.
/// DbCell records that are in `original`, too, are the other writer's.
std::string offsetFaults(const Bytes& file, const Bytes& original = {});

} // namespace xlstest
