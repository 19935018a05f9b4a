#pragma once

#include "platform/files/FileLock.h"

namespace zvonika {

// The lock of an office program (LibreOffice and its relatives): a hidden file ".~lock.<name>#" beside the
// document, with who has it open, since when, and the user profile of the office.

/// Who has the file open in an office; nothing when nobody has. A lock that is older than the last start of
/// this computer, where it was made, counts for nothing; one that cannot be read counts.
std::optional<LockHolder> officeLockHolder(const QString& nativePath);
/// The profile's URL that the lock names; "" when there is none or it cannot be read.
QString officeLockProfile(const QString& nativePath);
QString officeLockName(const QString& nativePath);
/// Takes the lock away, whoever holds it.
void removeOfficeLock(const QString& nativePath);

} // namespace zvonika
