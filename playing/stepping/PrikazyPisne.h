#pragma once

#include "song/CommandStates.h"

namespace zvonika {

/// Switches the backward commands cmdPredchozi, cmdPredTlak, cmdPredTah and cmdJakDalZpet.
void ZakazZpet(CommandStates& prikazy);
void PovolZpet(CommandStates& prikazy);

/// Switches the commands of an open song on (a song was created or opened) and off (end of song, and before
/// the first one). Off includes the three sound buttons, which on leaves to `Zvuk::NajdiZvuk`, and the two
/// commands that take steps back and do them again, which follow their list.
void PovolPrikazyPisne(CommandStates& prikazy);
void ZakazPrikazyPisne(CommandStates& prikazy);

/// Switches the commands that start a song: cmdEdit, mnuOtevrit, mnuNovaPisen and cmdNovaSkladba.
void povolZahajeniPisne(CommandStates& prikazy, bool povolit);

} // namespace zvonika
