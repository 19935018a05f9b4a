#include "app/ui/IkonaProgramu.h"

#include "theory/ui/BarvyVyznamu.h"

#include <QPainter>
#include <QPixmap>

namespace zvonika {

namespace {

void knoflik(QPainter& painter, QPointF stred, double polomer, const QColor& barva) {
    QRadialGradient svetlo(stred - QPointF(polomer * 0.35, polomer * 0.35), polomer * 1.4);
    svetlo.setColorAt(0, barva.lighter(125));
    svetlo.setColorAt(1, barva.darker(120));
    painter.setBrush(svetlo);
    painter.drawEllipse(stred, polomer, polomer);
}

QPixmap kresli(int strana) {
    QPixmap obraz(strana, strana);
    obraz.fill(Qt::transparent);
    QPainter painter(&obraz);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(strana / 64.0, strana / 64.0);
    painter.setPen(Qt::NoPen);
    QLinearGradient telo(0, 0, 64, 64);
    telo.setColorAt(0, QColor(0x8C, 0x2F, 0x2A));
    telo.setColorAt(1, QColor(0x4A, 0x15, 0x15));
    painter.setBrush(telo);
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
    const QColor perlet(0xF6, 0xF0, 0xE2);
    const QColor eben(0x2A, 0x26, 0x24);
    for (int sloupec = 0; sloupec < 3; ++sloupec)
        for (int radek = 0; radek < 3; ++radek) {
            const QPointF stred(15 + sloupec * 17, (sloupec == 1 ? 10 : 16) + radek * 17);
            if (stred.y() < 58)
                knoflik(painter, stred, 7,
                        sloupec == 1 && radek == 1   ? barvyTahu::krok
                        : (sloupec + radek) % 3 == 2 ? eben
                                                     : perlet);
        }
    return obraz;
}

} // namespace

QIcon ikonaProgramu() {
    QIcon ikona;
    for (const int strana : {16, 32, 64})
        ikona.addPixmap(kresli(strana));
    return ikona;
}

} // namespace zvonika
