#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"

#include <memory>
#include <vector>

namespace zvonika {

/// True when the folder exists; any error counts as a missing folder.
bool SlozkaExistuje(const Drive& drive, const QString& path);

/// Songs that a new one is to replace, until it stands.
using PuvodniPisne = std::vector<std::unique_ptr<SetAside>>;

/// False when there is no file `path`, or when the user wants it deleted, which takes it to `puvodni`; true
/// when the user keeps it. RuntimeError 70 when it cannot be deleted or somebody else has it open.
bool PisenExistuje(Drive& drive, Dialogs& dialogs, const QString& path, PuvodniPisne& puvodni);

/// Tells the user that the working folder is missing and creates it with the folders above it. A folder that
/// cannot be created is found out when the song is saved.
void zalozPracovniAdresar(Drive& drive, Dialogs& dialogs);

} // namespace zvonika
