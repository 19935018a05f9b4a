#pragma once

#include "platform/files/BytePieces.h"

#include <QString>

#include <cstdint>
#include <span>

namespace zvonika {

/// Replaces the contents of a file, or creates it: afterwards it holds either all of `bytes`, safely on the
/// disk, or what it held before. Permissions and owner are kept, a symbolic link stays and its target is
/// written. Throws std::system_error with the system's error; no temporary file is left behind.
void writeAtomically(const QString& nativePath, std::span<const std::uint8_t> bytes);
void writeAtomically(const QString& nativePath, const BytePieces& contents);

/// Clears away what killed writers of this file have left beside it. Nobody may be writing it now.
void removeLeftovers(const QString& nativePath);

} // namespace zvonika
