#pragma once

#include "theory/ui/MirkaOsnovy.h"

#include <QRectF>

#include <optional>

namespace zvonika {

/// Where the parts of the entry staff lie in its widget. Slots keep their places in every key.
struct MistaZapisu {
    MirkaOsnovy mirka;
    QRectF plocha;            ///< whole sheet of paper
    QRectF paleta;            ///< above clef and signature
    double klic = 0;          ///< left edge of the clef
    double predznamenani = 0; ///< left edge of the signature
    double prvniSlot = 0;     ///< left edge of slot 0
    double sirkaSlotu = 0;
    double nazvy = 0; ///< top of the row of tone names, which goes down to the edge of the paper

    static MistaZapisu pro(const QRectF& plocha, double vyskaNazvu, double dpr);

    QRectF slot(int i) const;
    QRectF nazev(int i) const;
    /// The slot in whose column `x` lies.
    std::optional<int> slotNa(double x) const;
};

} // namespace zvonika
