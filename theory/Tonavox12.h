#pragma once

#include "theory/CisloTonu.h"
#include "theory/ToneName.h"

#include <QString>

#include <variant>

namespace zvonika {

/// The tone model: names tones and numbers names. Every call leaves its result in `Ton`; nothing is ever
/// raised. Who wants the result at once calls the functions of NazvyTonu.h, on which it stands.
class Tonavox12 {
public:
    using Vysledek = std::variant<ToneName, CisloTonu>;

    /// `Ton`: the sharp name of the tone, or "Nenalezeno" outside 1..49. `MimoStupnici` becomes false.
    void DejTon(CisloTonu cislo);

    /// `Ton`: the name of the tone as it is written in the key, or "Nenalezeno" outside 1..49; an unknown key
    /// gives the sharp name. `MimoStupnici`: the tone is not in the key's scale (never so for "Fis dur").
    /// `stupnice` is left normalised in the caller's variable: "D dur" becomes "ddur".
    void DejTonVeStupnici(CisloTonu cislo, QString& stupnice);

    /// `Ton`: the number of the tone of exactly this name in any of its spellings, or 99. `MimoStupnici`
    /// stays.
    void DejCisloTonu(const ToneName& nazev);

    /// The result of the last call; before the first one an empty name.
    const Vysledek& Ton() const { return ton_; }
    bool MimoStupnici() const { return mimoStupnici_; }

    /// `Ton` as a name; empty where the last result is a number.
    ToneName nazevTonu() const;
    /// `Ton` as a number; 99 where the last result is a name.
    CisloTonu cisloTonu() const;

private:
    Vysledek ton_;
    bool mimoStupnici_ = false;
};

} // namespace zvonika
