#pragma once

#include <QString>

namespace zvonika {

class Prstoklad;
class TrebleBoard;

/// The fingers that wait for the next recorded grip, as the player is told of them: "Prstoklad čeká: 12 = 1,
/// pomocný 14 = 4." and which of their buttons are not marked; "" where none waits.
QString cekajiciPrsty(const Prstoklad& prstoklad, const TrebleBoard& diskant);

/// One entry of them in the same words; one that names no button stands as it is.
QString slovyPrst(const QString& zaznam);

} // namespace zvonika
