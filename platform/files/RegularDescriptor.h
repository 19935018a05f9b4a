#pragma once

#include <string>

namespace zvonika {

enum class Links {
    Follow,
    Refuse ///< the name itself must be the file's; folders on the way may be links
};

// Files that others may have put there. Plain POSIX, for processes that know no Qt as well.

/// Opens a regular file of at most `largest` bytes. Never waits for a pipe, a device or another process,
/// whatever stands under the name, and never makes a file. `access`: O_RDONLY or O_RDWR. The descriptor,
/// which is closed by exec and belongs to the caller; -1 with errno: ELOOP for a link that is refused, EISDIR
/// for a folder, ENODEV for what else is no regular file, EFBIG for a larger one.
int openRegular(const char* path, Links links, long long largest, int access);

/// Reads such a file whole into `text`. False, with errno as above, where that fails.
bool readRegular(const char* path, Links links, long long largest, std::string& text);

} // namespace zvonika
