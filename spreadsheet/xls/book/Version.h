#pragma once

#include "spreadsheet/xls/records/Endian.h"

namespace zvonika::xls {

/// Versions of the record stream that the engine reads; the later one is what it writes.
enum class Version { Biff5, Biff8 };

/// Reads the Bof record at the beginning of a workbook stream. Looks for encryption before anything else is
/// read: then nothing but record headers means what it says. Throws FormatError: OldFormat, Encrypted,
/// Damaged.
Version readVersion(ByteView stream);

/// True for the beginning of a BIFF8 workbook; says nothing about the rest of it.
bool beginsBiff8(ByteView stream);

} // namespace zvonika::xls
