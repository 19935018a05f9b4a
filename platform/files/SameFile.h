#pragma once

#include <QString>

namespace zvonika {

/// The one name of a file, native, with slashes: links lead to what they lead to, and on Windows it has long
/// names, the drive, and the letters as the disk writes them. Of a file that is not there, that of its folder
/// with its own name.
QString trueName(const QString& nativePath);

/// Equal for names of one file, and for no others; where letters of both cases are the same to the disk, they
/// are here.
QString sameFileKey(const QString& nativePath);

} // namespace zvonika
