#pragma once

#include <QString>

#include <system_error>

namespace zvonika {

// Small steps of the system that say why they fail, in the words of std::errc. Where somebody has a look at
// the file they are tried again for two seconds.

/// Gives a file another name in the same file system; on Windows never over another file.
std::error_code moveFile(const QString& from, const QString& to);
/// Makes a folder that the user does not see unless he wants to.
std::error_code makeHiddenFolder(const QString& nativePath);
/// False when the file is there still.
bool removeFile(const QString& nativePath);

} // namespace zvonika
