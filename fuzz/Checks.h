#pragma once

#include "spreadsheet/xls/Workbook.h"

/// What must hold for the engine whatever the bytes are. A breach ends the process (abort, or an exception
/// that nobody catches), so that a fuzzer and the replaying test see it.
namespace zvonika::fuzz {

/// Opens the file; where that succeeds, reads, saves, changes, saves and reads again.
void checkFile(const xls::Bytes& file);

/// Reads every stream of the container that the engine would look for, and replaces each.
void checkContainer(const xls::Bytes& file);

} // namespace zvonika::fuzz
