#pragma once

#include "platform/Dialogs.h"
#include "platform/Shell.h"

namespace zvonika {

/// The about box (`cmdOPrg`, `mnuOProgramu`).
void cmdOPrg(Dialogs& dialogs);

/// Mail to the author (`mnuMailAutorovi`): a word of explanation, then the mail link to the desktop. The link
/// begins with a quotation mark and keeps its own version number. False when the desktop has nothing to send
/// mail with.
bool mnuMailAutorovi(Dialogs& dialogs, Shell& shell);

/// Exit by the menu (`mnuKonec`): true when the user confirmed.
bool mnuKonec(Dialogs& dialogs);

} // namespace zvonika
