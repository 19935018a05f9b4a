#pragma once

#include "platform/files/RegularDescriptor.h"

#include <QByteArray>
#include <QString>

#include <system_error>

class QFile;

namespace zvonika {

// Every file that somebody else may have put there is opened here: songs, locks, journals, settings, tables.
// A pipe, a device, a folder or a link where there must be none is refused at once, as is what is larger than
// `largest` bytes; nothing is ever waited for. `nativePath`: full name.

/// Opens a file for reading; `file` must be closed. Says why not (nothing: it is open):
/// no_such_file_or_directory, permission_denied, is_a_directory, no_such_device (another kind of file),
/// too_many_symbolic_link_levels (a link that is refused, or a circle), file_too_large, or what the system
/// says.
std::error_code openRegular(QFile& file, const QString& nativePath, Links links, qint64 largest);

struct ReadBytes {
    QByteArray bytes;        ///< "" where they could not be read
    std::error_code trouble; ///< why; nothing: the whole file was read
};
ReadBytes readRegular(const QString& nativePath, Links links, qint64 largest);

} // namespace zvonika
