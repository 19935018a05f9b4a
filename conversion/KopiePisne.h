#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "song/SongSheet.h"

#include <memory>

namespace zvonika {

/// Saves the current song and then again as "<song> <target key>.xls": the copy on which a conversion works
/// becomes the current song. An older copy is set aside and back in its place with this object, unless the
/// new one stands.
class KopiePisne {
public:
    KopiePisne(Pisen& pisen, Dialogs& dialogs, Drive& drive)
        : pisen_(pisen), dialogs_(dialogs), drive_(drive) {}

    /// False when the user keeps an older file of that name; then nothing is saved. Throws AutomationError,
    /// and RuntimeError when the older file cannot be deleted; the song is what it was then.
    bool uloz(const QString& cilova);
    /// The copy is there to stay: the older one goes.
    void potvrd();
    /// The copy is not to be: the song that it was made of is opened again and current, and the copy goes.
    /// False when the song cannot be opened; then the copy stays. Throws nothing.
    bool vezmiZpet();

private:
    bool uvolniMisto();
    void otevriPuvodni();

    Pisen& pisen_;
    Dialogs& dialogs_;
    Drive& drive_;
    QString puvodni_; ///< full name of the song
    QString misto_;   ///< full name of the copy; "" where nobody knows it
    std::unique_ptr<SetAside> starsi_;
};

} // namespace zvonika
