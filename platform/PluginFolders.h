#pragma once

#include <QStringList>

namespace zvonika {

/// The native folders in which the program's plug-ins stand, in the order in which they are to be tried:
/// beside the executable, then where a package puts them.
QStringList pluginFolders();

} // namespace zvonika
