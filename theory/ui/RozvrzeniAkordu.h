#pragma once

#include "theory/PolohaNoty.h"

#include <QRectF>
#include <QVector>

#include <optional>

namespace zvonika {

/// One note of a chord; lengths in staff spaces, x = 0 in the middle of the chord's first column of heads.
struct MistoNoty {
    PolohaNoty poloha;
    double hlavicka = 0;   ///< middle of the head
    double znamenko = 0;   ///< left edge of the sign; without meaning where there is none
    bool interval = false; ///< the note of an interval, drawn in its own way
};

/// A chord laid out so that neither heads nor signs lie on each other.
struct RozvrzeniAkordu {
    QVector<MistoNoty> noty; ///< from the lowest up
    double vlevo = 0;        ///< left edge, not positive
    double vpravo = 0;       ///< right edge

    double sirka() const { return vpravo - vlevo; }
};

/// Notes a second apart, or in the same place, stand side by side; signs go to the left of all heads, in as
/// many columns as they need. `interval` is laid out among the notes.
RozvrzeniAkordu rozvrhniAkord(const QVector<PolohaNoty>& polohy,
                              const std::optional<PolohaNoty>& interval = {});

/// Extent of a sign whose note stands on y = 0, from x = 0, in staff spaces, y downwards; empty for Zadne.
QRectF rozmerZnamenka(Znamenko znamenko);

} // namespace zvonika
