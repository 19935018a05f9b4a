#pragma once

#include "platform/files/FileLock.h"

#include <functional>

namespace zvonika {

class Dialogs;

/// Locks a file that is to be opened. Where another one has it open, the user is asked whether to open it all
/// the same, in a box of that title; No is proposed, and refuses with 1004 and who has it. `carryOut`: what
/// works on the files is done within it.
FileLock lockToOpen(
    Dialogs& dialogs, const QString& title, const QString& nativePath,
    const std::function<void(const std::function<void()>&)>& carryOut = [](const auto& work) { work(); });

} // namespace zvonika
