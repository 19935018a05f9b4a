#pragma once

#include <QString>

namespace zvonika {

/// Why Windows has no file of this name (without folder): a Czech clause without a full stop, "v jeho jménu
/// je znak „:“, který tam být nesmí". "" where the name will do.
QString forbiddenOnWindows(const QString& fileName);

/// The same for the name of this file on the system that runs here: elsewhere nothing is forbidden but what
/// the disk itself refuses.
QString forbiddenName(const QString& nativePath);

} // namespace zvonika
