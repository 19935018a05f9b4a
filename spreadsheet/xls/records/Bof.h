#pragma once

#include "spreadsheet/xls/records/Record.h"

namespace zvonika::xls {

/// What a substream is, as its Bof record says.
constexpr std::uint16_t globalsSubstream = 0x0005;
constexpr std::uint16_t worksheetSubstream = 0x0010;

/// Appends the Bof record of a BIFF8 substream.
void appendBof(std::vector<std::uint8_t>& out, std::uint16_t substream);

} // namespace zvonika::xls
