#pragma once

#include <QString>

namespace zvonika {

struct LockHolder;

/// Why a file that another one has locked was not opened: one Czech sentence that names the file.
/// Of a lock that cannot be read it names the hidden file.
QString openElsewhere(const QString& nativePath, const LockHolder& holder);
/// Asks whether to open it all the same; two paragraphs.
QString openAnyway(const QString& nativePath, const LockHolder& holder);
/// "uživatel jana, počítač doma, program zvonika, proces 123"
QString whoHolds(const LockHolder& holder);

} // namespace zvonika
