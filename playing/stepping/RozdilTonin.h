#pragma once

#include "theory/Key.h"

#include <QString>

namespace zvonika {

/// One sentence where the row is written in another key than the one chosen for recording; "" where it is
/// not, or in no key.
QString rozdilTonin(const QString& toninaRadku, const Key& zvolena);

} // namespace zvonika
