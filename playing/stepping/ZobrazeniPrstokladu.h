#pragma once

#include "platform/Dialogs.h"

#include <QString>

namespace zvonika {

class TrebleBoard;
struct Nastroj;

/// Shows the fingering of a stored grip on the buttons.
class ZobrazeniPrstokladu {
public:
    ZobrazeniPrstokladu(TrebleBoard& diskant, Dialogs& dialogs) : diskant_(diskant), dialogs_(dialogs) {}

    /// Stacks the fingers of a record, the text of column V, on the captions of the buttons. A record that
    /// cannot be read to its end is reported to the user here; what was read before stays shown.
    void ZobrazPrstoklad(const QString& zaznam);
    /// True when `ZobrazPrstoklad` would have nothing to report.
    static bool jePlatny(const QString& zaznam, const Nastroj& nastroj);

private:
    void ohlasNeplatnyZaznam();

    TrebleBoard& diskant_;
    Dialogs& dialogs_;
};

} // namespace zvonika
