#pragma once

#include "aids/ui/VolbaProhlizece.h"
#include "app/TabulkoveProgramy.h"
#include "board/Nastroj.h"
#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "platform/Media.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "platform/WakeUpClock.h"
#include "spreadsheet/journal/JournalFolder.h"

namespace zvonika {

/// The outside world as the program is given it, and the instrument. What is held by reference
/// outlives the program.
struct Prostredi {
    Dialogs& dialogs;
    SettingsStore& nastaveni;
    Drive& drive;
    Shell& shell;
    TabulkoveProgramy tabulky;
    WakeUpClock& hodiny;
    Media& media;
    TvurceProhlizece tvurceProhlizece = jednoduchyProhlizec();
    Nastroj nastroj = nastrojZvonika();
    JournalFolder zaznamy = {}; ///< recovery journals of songs
};

} // namespace zvonika
