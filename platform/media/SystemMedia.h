#pragma once

#include "platform/Drive.h"
#include "platform/Media.h"

#include <memory>

namespace zvonika {

/// The multimedia interface of this system: its own on Windows, elsewhere one that plays MIDI through a
/// plug-in. Nothing is loaded before the first file is opened.
/// `pluginFolders`: the native folders of the program's plug-ins.
std::unique_ptr<Media> systemMedia(const Drive& drive, const QStringList& pluginFolders);

} // namespace zvonika
