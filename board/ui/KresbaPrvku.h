#pragma once

#include "board/ui/PodobaPrvku.h"

class QPainter;
class QRectF;

namespace zvonika {

/// Round or pill-shaped button with rim, shadow, light and its mark, filling `misto`.
void nakresliKnoflik(QPainter& painter, const QRectF& misto, const PodobaPrvku& podoba);

/// Piano key seen from above, its front edge on the right, filling `misto`.
void nakresliKlavesu(QPainter& painter, const QRectF& misto, const PodobaPrvku& podoba);

/// Where the mark of a state stands on a face: in its middle, or at its side when the face carries a caption.
void nakresliZnak(QPainter& painter, const QRectF& lic, const PodobaPrvku& podoba, const QColor& barva);

} // namespace zvonika
