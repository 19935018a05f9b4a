#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/journal/JournalFolder.h"

namespace zvonika {

class ZivotPisne;

/// The songs whose last changes a crash has left in journals: named at the start, and the one worked on last
/// is opened when the user wants to.
class NeulozenePisne {
public:
    NeulozenePisne(JournalFolder zaznamy, Dialogs& dialogs, ZivotPisne& zivotPisne)
        : zaznamy_(std::move(zaznamy)), dialogs_(dialogs), zivotPisne_(zivotPisne) {}

    bool nejake() const;
    /// Throws AutomationError when the song is not to be opened.
    void nabidni();

private:
    JournalFolder zaznamy_;
    Dialogs& dialogs_;
    ZivotPisne& zivotPisne_;
};

} // namespace zvonika
