#pragma once

#include "board/BassBoard.h"
#include "board/BassTable.h"
#include "board/TrebleBoard.h"
#include "playing/recording/Prstoklad.h"
#include "playing/stepping/Timer1.h"
#include "song/CommandStates.h"
#include "song/Pas.h"
#include "song/SongPanel.h"
#include "song/SongSheet.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/NotovaOsnova.h"
#include "theory/Tonina.h"

namespace zvonika {

/// The state of the run: everything that conversations change and windows show.
struct Modely {
    Modely(const Nastroj& nastroj, const QString& slozkaProgramu)
        : diskant(nastroj), basy(nastroj), tabulkaBasu(slozkaProgramu, nastroj.pocetBasu()) {}

    Pisen pisen;
    SongPanel panel;
    CommandStates stavy;
    Timer1 timer1;
    Tonina tonina;
    TrebleBoard diskant;
    BassBoard basy;
    BassTable tabulkaBasu;
    NotovaOsnova zapisovaciOsnova;
    ZobrazovaciOsnova zobrazovaciOsnova;
    Prstoklad prstoklad;
    Pas pas;
    int krokyIntervalu = 2; ///< the interval that is chosen, in scale steps, 1..14
};

} // namespace zvonika
