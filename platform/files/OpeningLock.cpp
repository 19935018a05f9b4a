#include "platform/files/OpeningLock.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/files/LockSentences.h"

namespace zvonika {

/// A lock can outlive its owner on a computer that is no longer there; the file itself cannot be spoiled by
/// opening it, and a save notices what the other one has written.
FileLock lockToOpen(Dialogs& dialogs, const QString& title, const QString& nativePath,
                    const std::function<void(const std::function<void()>&)>& carryOut) {
    FileLock lock;
    std::optional<LockHolder> holder;
    bool taken = true; // by another process
    carryOut([&] {
        holder = FileLock::holder(nativePath);
        taken = holder && !holder->isThisProcess();
        if (!taken) lock = FileLock::acquire(nativePath);
    });
    if (!taken) return lock;
    const Answer answer = dialogs.message(
        {title, openAnyway(nativePath, *holder), Icon::Exclamation, Buttons::YesNo, Answer::No});
    if (answer != Answer::Yes)
        throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, *holder));
    carryOut([&] { lock = FileLock::takeOver(nativePath); });
    return lock;
}

} // namespace zvonika
