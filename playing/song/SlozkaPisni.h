#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"

namespace zvonika {

/// True when the folder exists; any error counts as a missing folder.
bool SlozkaExistuje(const Drive& drive, const QString& path);

/// False when there is no file `path`, or when the user had it deleted; true when the user keeps it. A file
/// that cannot be deleted is asked about again.
bool PisenExistuje(Drive& drive, Dialogs& dialogs, const QString& path);

/// Tells the user that the working folder is missing and creates it with the folders above it. A folder that
/// cannot be created is found out when the song is saved.
void zalozPracovniAdresar(Drive& drive, Dialogs& dialogs);

} // namespace zvonika
