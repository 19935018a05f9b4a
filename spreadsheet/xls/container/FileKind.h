#pragma once

#include "spreadsheet/xls/records/Endian.h"

namespace zvonika::xls {

/// Throws FormatError for a file that is no OLE2 container, saying what it seems to be; returns when it
/// begins as one. `head`: at least its first 4096 bytes, or all of a shorter file.
void requireCompoundFile(ByteView head, std::size_t fileSize);

} // namespace zvonika::xls
