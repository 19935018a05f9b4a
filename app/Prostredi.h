#pragma once

#include "aids/ui/VolbaProhlizece.h"
#include "app/VolbaTabulky.h"
#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "platform/Media.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "platform/WakeUpClock.h"
#include "spreadsheet/SpreadsheetApplication.h"

namespace zvonika {

/// The spreadsheet programs beside the one that `Prostredi::spoustecExcelu` starts.
struct DalsiTabulky {
    /// What the user can choose from, looked up at each call.
    std::function<QVector<NabidkaTabulky>()> nabidka = [] { return QVector{nabidkaVestavene()}; };
    /// Starts the built-in spreadsheet, where it is not the chosen one.
    SpreadsheetLauncher nahradni = {};
    /// The start is over, whether it has succeeded or not.
    std::function<void()> spusteno = [] {};
};

/// The outside world as the program is given it; all of it outlives the program.
struct Prostredi {
    Dialogs& dialogs;
    SettingsStore& nastaveni;
    Drive& drive;
    Shell& shell;
    SpreadsheetLauncher spoustecExcelu;
    WakeUpClock& hodiny;
    Media& media;
    TvurceProhlizece tvurceProhlizece = jednoduchyProhlizec();
    DalsiTabulky tabulky = {};
};

} // namespace zvonika
