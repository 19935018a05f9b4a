#pragma once

#include "board/ui/PodobaPrvku.h"

#include <QCache>
#include <QPixmap>

class QPainter;

namespace zvonika {

/// The drawn pictures of buttons and keys. Each look is drawn once per size and device pixel ratio and shared
/// by all parts that look so; the least used give way beyond a few megabytes.
class ObrazyPrvku {
public:
    ObrazyPrvku();

    /// Paints the picture with its top left corner at `kam`.
    void kresli(QPainter& painter, const QPointF& kam, const PodobaPrvku& podoba);
    qsizetype pocet() const { return obrazy_.count(); }

private:
    const QPixmap& obraz(const PodobaPrvku& podoba, qreal dpr);

    QCache<quint64, QPixmap> obrazy_;
};

} // namespace zvonika
