#pragma once

#include "platform/Drive.h"
#include "platform/Media.h"
#include "playing/stepping/OkoliPisne.h"

namespace zvonika {

/// The sound files of the song.
class Zvuk {
public:
    Zvuk(const OkoliPisne& okoli, const Drive& drive, Media& media)
        : okoli_(okoli), drive_(drive), media_(media) {}

    /// Called when a song has been created or opened: switches off the commands that start another one,
    /// enables the sheet list, shows the active sheet's name, and enables cmdZvuk(0) for the song's mp3, (1)
    /// for its mid and (2) for its wav file where the working folder has it. May throw AutomationError.
    void NajdiZvuk();
    /// Enables the sound buttons for the files that there are beside a song of this name.
    void najdiSoubory();

    /// Click on a sound button: fails with error 9 at once. Nothing traps it, so the click ends the program.
    [[noreturn]] void cmdZvuk(int index) const;

    /// Opens a sound file, by its full name, and plays it in the background. Every file is sent to the
    /// sequencer, whatever its extension. False when it does not play; that it could not be opened is not
    /// told apart.
    bool PrehrajZvuk(const QString& jmeno);
    /// Stops a sound file and closes it; nothing happens where none is open.
    void ZastavZvuk(const QString& jmeno);

private:
    OkoliPisne okoli_;
    const Drive& drive_;
    Media& media_;
};

} // namespace zvonika
