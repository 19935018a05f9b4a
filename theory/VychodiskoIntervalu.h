#pragma once

#include "theory/CisloTonu.h"
#include "theory/Key.h"
#include "theory/ToneName.h"

namespace zvonika {

class clsNoty;

/// Where an interval starts.
struct VychodiskoIntervalu {
    ToneName nazev; ///< of the tone, as the key writes it
    bool mimoStupnici = false;
    /// The tone of the scale from which the steps are counted: the tone itself or, for one outside the scale,
    /// the one that is written on the same line or space, a semitone away. So the interval keeps the name
    /// that its two written notes have (from fis1 in C dur counted as from f1).
    ToneName opora;
    /// Steps to add where `opora` stands an octave away because the instrument has no nearer one.
    int posun = 0;
};

/// `ton` is within 1..49. `stupnice` is one of the 15 keys; Fis dur tells of no tone that it lies outside.
VychodiskoIntervalu vychodiskoIntervalu(CisloTonu ton, const Key& stupnice, const clsNoty& noty);

} // namespace zvonika
