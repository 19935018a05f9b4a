#include "platform/files/OpeningLock.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/files/LockSentences.h"

#include <QFileInfo>

namespace zvonika {

/// A lock can outlive its owner on a computer that is no longer there; the file itself cannot be spoiled by
/// opening it, and a save notices what the other one has written.
FileLock lockToOpen(Dialogs& dialogs, const QString& title, const QString& nativePath) {
    const auto holder = FileLock::holder(nativePath);
    if (!holder || holder->isThisProcess()) return FileLock::acquire(nativePath);
    const QString question =
        QStringLiteral("Soubor „%1“ má už otevřený někdo jiný:\n%2.\n\n"
                       "Kdybyste ho měnili oba, mohl by jeden z Vás o svou práci přijít. "
                       "Chcete ho přesto otevřít? Odpovíte-li Ne, neotevře se nic a Zvonika oznámí chybu.")
            .arg(QFileInfo(nativePath).fileName(), whoHolds(*holder));
    const Answer answer = dialogs.message({title, question, Icon::Exclamation, Buttons::YesNo, Answer::No});
    if (answer != Answer::Yes)
        throw RuntimeError(error::applicationDefined, openElsewhere(nativePath, *holder));
    return FileLock::takeOver(nativePath);
}

} // namespace zvonika
