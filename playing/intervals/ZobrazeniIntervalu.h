#pragma once

#include "theory/ToneName.h"

#include <QString>

namespace zvonika {

class Dialogs;
class TrebleBoard;
class ZobrazovaciOsnova;

/// Shows the tone at the end of an interval: its buttons and its key in brown, its note on the display staff.
class ZobrazeniIntervalu {
public:
    ZobrazeniIntervalu(TrebleBoard& diskant, ZobrazovaciOsnova& osnova, Dialogs& dialogs)
        : diskant_(diskant), osnova_(osnova), dialogs_(dialogs) {}

    /// `poloha`: what `UrciPolohuNoty` says of the note. True when it is shown; a staff mark that is neither
    /// sharp nor flat is reported, and an empty text has been before.
    bool ukaz(const ToneName& nota, const QString& poloha);
    void odeber();

private:
    TrebleBoard& diskant_;
    ZobrazovaciOsnova& osnova_;
    Dialogs& dialogs_;
};

} // namespace zvonika
