#pragma once

#include "spreadsheet/xls/records/Endian.h"

namespace zvonika::xls {

/// Throws FormatError for a file that is no OLE2 container, saying what it seems to be; returns when it is
/// one.
void requireCompoundFile(ByteView file);

} // namespace zvonika::xls
