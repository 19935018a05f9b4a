#pragma once

#include "platform/SettingsStore.h"

#include <memory>

namespace zvonika {

/// The per-user store of one application: the registry (HKCU\Software\VB and VBA Program Settings) on
/// Windows, an INI file in the user's configuration folder elsewhere.
std::unique_ptr<SettingsStore> userSettings(const QString& application);

/// Native folder where an application keeps what it needs to go on after a break: below XDG_STATE_HOME
/// (~/.local/state where nothing is set), on Windows below the local application data. Need not exist.
QString userStateFolder(const QString& application);

} // namespace zvonika
