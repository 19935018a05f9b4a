#pragma once

#include "board/TrebleBoard.h"
#include "platform/Dialogs.h"
#include "playing/recording/PoZapisu.h"
#include "playing/recording/Prstoklad.h"
#include "playing/recording/ZapisBasu.h"
#include "playing/undo/SeznamyKroku.h"
#include "theory/Tonina.h"

#include <utility>

namespace zvonika {

/// What both ways of recording share. Held by reference; all of it outlives them.
struct OkoliZapisu {
    Pisen& pisen;
    Dialogs& dialogs;
    Prstoklad& prstoklad;
    ZapisBasu& basy;
    PoZapisu& poZapisu;
    SeznamyKroku& kroky;
    const Tonina& tonina; ///< the key, caption of `cmdStupnice`

    /// What the row is told of the key: the caption, nothing for "Vyberte stupnici".
    QString toninaRadku() const;
};

/// Records the grip that is marked on the board into the current row. May throw AutomationError: what was
/// written so far then stays.
class ZapisHmatu {
public:
    ZapisHmatu(OkoliZapisu okoli, const TrebleBoard& diskant) : okoli_(okoli), diskant_(diskant) {}

    void cmdTah();
    void cmdTlak();
    bool mechTlak() const { return mechTlak_; } ///< direction of the last press

private:
    void ZapisHmat();
    QStringList oznaceneTony(bool& prebyva);
    void zapisTony(SongSheet& list, int radek, Grip& hmat);
    void ohlasPrebytek();

    OkoliZapisu okoli_;
    const TrebleBoard& diskant_;
    bool mechTlak_ = false;
};

} // namespace zvonika
