#include "platform/files/OpeningLock.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/files/LockSentences.h"

namespace zvonika {

/// A lock can outlive its owner on a computer that is no longer there; the file itself cannot be spoiled by
/// opening it, and a save notices what the other one has written.
FileLock lockToOpen(Dialogs& dialogs, const QString& title, const QString& nativePath) {
    const auto holder = FileLock::holder(nativePath);
    if (!holder || holder->isThisProcess()) return FileLock::acquire(nativePath);
    const Answer answer = dialogs.message(
        {title, openAnyway(nativePath, *holder), Icon::Exclamation, Buttons::YesNo, Answer::No});
    if (answer != Answer::Yes)
        throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, *holder));
    return FileLock::takeOver(nativePath);
}

} // namespace zvonika
