#pragma once

#include <system_error>

namespace zvonika {

/// What an error number of Windows says, in the words that are known everywhere: text_file_busy where another
/// program has the file open. A number without a counterpart is kept, in the system's category; 0 is no
/// error.
std::error_code windowsError(unsigned long number);

/// Whether it may be over in a moment: somebody has a look at the file (a scanner, an indexer, a cloud
/// folder).
bool isPassing(unsigned long number);

/// Whether the file system has no replacement that keeps the old file's rights.
bool isUnknownToDisk(unsigned long number);

} // namespace zvonika
