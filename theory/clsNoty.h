#pragma once

#include "platform/Dialogs.h"
#include "theory/ToneName.h"

#include <QString>

#include <optional>

namespace zvonika {

/// Places tone names on the staff.
class clsNoty {
public:
    explicit clsNoty(Dialogs& dialogs) : dialogs_(dialogs) {}

    /// The accidental mark ("k" sharp, "b" flat or nothing) and the position in staff units ("e," gives
    /// "120", "cis1," gives "k420"; see `PolohaNoty`). A name that cannot be read is reported to the user: an
    /// unknown letter or an unexpected fourth character gives the empty text, an unexpected second or third
    /// one is skipped.
    QString UrciPolohuNoty(const ToneName& nazev) const;

private:
    enum class Znak;

    static Znak druhyZnak(QChar znak);
    static Znak tretiZnak(QChar znak);
    static Znak ctvrtyZnak(QChar znak);
    std::optional<int> prectiOktavu(const QString& nazev, Znak druhy) const;
    void ohlasNeocekavanou(const QString& titulek) const;

    Dialogs& dialogs_;
};

} // namespace zvonika
