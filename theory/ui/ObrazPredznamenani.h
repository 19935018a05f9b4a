#pragma once

#include "theory/Predznamenani.h"

#include <QPixmap>

namespace zvonika {

/// A small staff with clef and key signature on paper. `velikost` in device independent pixels.
QPixmap obrazPredznamenani(const Predznamenani& predznamenani, QSize velikost, double dpr);

} // namespace zvonika
