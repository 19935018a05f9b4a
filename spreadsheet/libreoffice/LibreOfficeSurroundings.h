#pragma once

#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "platform/SettingsStore.h"
#include "spreadsheet/libreoffice/Installation.h"
#include "spreadsheet/libreoffice/Patience.h"

#include <QRect>

#include <functional>

namespace zvonika {

/// What Calc calls itself in the program's boxes.
inline const QString jmenoCalcu = QStringLiteral("LibreOffice Calc");

/// What a running Calc needs of its surroundings; all of it outlives the application.
struct LibreOfficeSurroundings {
    Drive& drive;
    Dialogs& dialogs;
    SettingsStore& settings; ///< the application's own, keeps the default folder
    Installation installation;
    QString profiles;               ///< native folder for the profiles of Zvonika's office
    QRect window;                   ///< where workbooks come up, in pixels of the screen; empty: anywhere
    std::function<void()> sign;     ///< called while Calc lets the user wait, about ten times a second
    std::function<void()> signOver; ///< the wait is over
    Patience patience = {};
};

} // namespace zvonika
