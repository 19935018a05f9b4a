#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "song/SongSheet.h"

namespace zvonika {

/// Saves the current song and then again as "<song> <target key>.xls": the copy on which a conversion works
/// becomes the current song.
class KopiePisne {
public:
    KopiePisne(Pisen& pisen, Dialogs& dialogs, Drive& drive)
        : pisen_(pisen), dialogs_(dialogs), drive_(drive) {}

    /// False when the user keeps an older file of that name; then nothing is saved. Throws AutomationError,
    /// and RuntimeError when the older file cannot be deleted.
    bool uloz(const QString& cilova);

private:
    bool uvolniMisto(const QString& plneJmeno);

    Pisen& pisen_;
    Dialogs& dialogs_;
    Drive& drive_;
};

} // namespace zvonika
