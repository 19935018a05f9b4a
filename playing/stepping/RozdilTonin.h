#pragma once

#include "theory/Key.h"

#include <QString>

namespace zvonika {

/// One sentence where the row is written in another key than the one chosen for recording; "" where it is
/// not, or in no key.
QString rozdilTonin(const QString& toninaRadku, const Key& zvolena);
/// What becomes of the row's key when its grip is recorded again, and how it is kept; "" where it is kept.
QString ztrataToniny(const QString& toninaRadku, const Key& zvolena);

} // namespace zvonika
