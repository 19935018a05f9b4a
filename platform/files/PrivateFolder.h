#pragma once

#include <QString>

namespace zvonika {

/// Makes a folder, and those above it that are missing, for nobody but the user. One that is there already
/// loses the rights of others, where it is the user's. False when it cannot be made.
bool makePrivateFolder(const QString& nativePath);

} // namespace zvonika
