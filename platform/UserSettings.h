#pragma once

#include "platform/SettingsStore.h"

#include <memory>

namespace zvonika {

/// The per-user store of one application: the registry (HKCU\Software\VB and VBA Program Settings) on
/// Windows, an INI file in the user's configuration folder elsewhere.
std::unique_ptr<SettingsStore> userSettings(const QString& application);

} // namespace zvonika
