#pragma once

#include "theory/PolohaNoty.h"
#include "theory/ToneName.h"

#include <QStringList>
#include <QVector>

namespace zvonika {

/// Where the tone of a name stands on the staff, asked in silence: nothing for text that is no tone name
/// ("Nenalezeno", "12", "e" without its comma) and for places that no tone of the board is written at (below
/// e, above f4).
std::optional<PolohaNoty> polohaNazvu(const ToneName& nazev);

/// The places of all names that have one, in their order, each only once.
QVector<PolohaNoty> polohyNazvu(const QStringList& nazvy);

} // namespace zvonika
