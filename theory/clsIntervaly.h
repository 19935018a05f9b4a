#pragma once

#include "platform/Dialogs.h"
#include "theory/Key.h"
#include "theory/TabulkaNot.h"
#include "theory/ToneName.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace zvonika {

/// Counts intervals in steps of a key's scale, along the note table. An interval is a signed number of steps:
/// a second is 1, an octave 7, downwards negative.
class clsIntervaly {
public:
    /// `slozkaProgramu`: native folder of the note table, which is read at once, and only then.
    clsIntervaly(const QString& slozkaProgramu, Dialogs& dialogs);

    /// `vysledek`: the note `kroky` steps from `ton` in the scale of the key; empty where there is none. The
    /// user is told why, except where the scale does not know `ton` (see `zna`). `ton` is to be written as
    /// the table writes it in that key. `bezKontroly`: the note is not held against the tones that the
    /// instrument has.
    void UrciInterval(const ToneName& ton, const Key& stupnice, std::int16_t kroky, bool bezKontroly,
                      ToneName& vysledek) const;

    /// The scale has this tone, and intervals can be counted from it.
    bool zna(const ToneName& ton, const Key& stupnice) const;

    /// One Czech sentence on what is wrong with the table; "" when it is whole.
    const QString& chyba() const { return tabulka_.chyba(); }

private:
    /// 0: not in the scale. Nothing: the table ends, or an entry lacks the key, before that is known.
    std::optional<int> pozice(const ToneName& ton, const QString& prvek) const;
    std::optional<ToneName> stupen(int pozice, const QString& prvek) const;
    void ohlasMimoRozsah(const ToneName& nota, const Key& stupnice) const;
    void ohlasNeznamou(const ToneName& nota) const;
    void ohlasMimoTabulku() const;

    TabulkaNot tabulka_;
    Dialogs& dialogs_;
};

} // namespace zvonika
