#pragma once

#include "platform/Dialogs.h"
#include "song/CommandStates.h"
#include "song/SongPanel.h"
#include "song/SongSheet.h"

namespace zvonika {

/// What every conversation about the song sees of the program. Held by reference; all of it outlives the
/// conversations.
struct OkoliPisne {
    Pisen& pisen;
    Dialogs& dialogs;
    SongPanel& panel;
    CommandStates& prikazy;
};

} // namespace zvonika
