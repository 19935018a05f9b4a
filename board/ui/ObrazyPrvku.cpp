#include "board/ui/ObrazyPrvku.h"

#include "board/ui/KresbaPrvku.h"

#include <QPainter>

#include <cmath>
#include <memory>

namespace zvonika {

namespace {

constexpr int nejvyseKilobajtu = 12 * 1024;

quint64 klic(const PodobaPrvku& p, qreal dpr) {
    quint64 k = static_cast<quint64>(p.tvar);
    const auto pridej = [&k](quint64 hodnota, int bitu) { k = k << bitu | hodnota; };
    pridej(static_cast<quint64>(p.vyznam), 3);
    pridej(p.tmavy, 1);
    pridej(p.popsany, 1);
    pridej(p.obtazeny, 1);
    pridej(static_cast<quint64>(p.hmat), 2);
    pridej(static_cast<quint64>(p.velikost.width()), 16);
    pridej(static_cast<quint64>(p.velikost.height()), 16);
    pridej(static_cast<quint64>(std::lround(dpr * 64)), 16);
    return k;
}

QPixmap nakresli(const PodobaPrvku& podoba, qreal dpr) {
    QPixmap obraz(QSizeF(QSizeF(podoba.velikost) * dpr).toSize().expandedTo({1, 1}));
    obraz.setDevicePixelRatio(dpr);
    obraz.fill(Qt::transparent);
    QPainter painter(&obraz);
    const QRectF misto(QPointF(), QSizeF(podoba.velikost));
    const bool klavesa = podoba.tvar == TvarPrvku::BilaKlavesa || podoba.tvar == TvarPrvku::CernaKlavesa;
    (klavesa ? nakresliKlavesu : nakresliKnoflik)(painter, misto, podoba);
    return obraz;
}

} // namespace

ObrazyPrvku::ObrazyPrvku() : obrazy_(nejvyseKilobajtu) {}

const QPixmap& ObrazyPrvku::obraz(const PodobaPrvku& podoba, qreal dpr) {
    const quint64 k = klic(podoba, dpr);
    if (const QPixmap* hotovy = obrazy_.object(k)) return *hotovy;
    auto novy = std::make_unique<QPixmap>(nakresli(podoba, dpr));
    const qsizetype kilobajtu = qsizetype(novy->width()) * novy->height() * 4 / 1024 + 1;
    const QPixmap& vysledek = *novy;
    // An object dearer than the whole cache would be deleted by insert() at once.
    obrazy_.insert(k, novy.release(), std::min(kilobajtu, qsizetype(nejvyseKilobajtu)));
    return vysledek;
}

void ObrazyPrvku::kresli(QPainter& painter, const QPointF& kam, const PodobaPrvku& podoba) {
    if (podoba.velikost.isEmpty()) return;
    painter.drawPixmap(kam, obraz(podoba, painter.device()->devicePixelRatioF()));
}

} // namespace zvonika
