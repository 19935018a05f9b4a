#include "theory/TonNaOsnove.h"
#include "theory/clsNotyZapis.h"
#include "theory/ui/OsnovaPainter.h"
#include "theory/ui/PopisOsnovy.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QPainter>

namespace zvonika {

namespace {

constexpr QColor vyber{224, 238, 255};
constexpr QColor vyberOkraj{120, 170, 230};
constexpr QColor zamereni{66, 126, 214};
constexpr QColor duchNoty{60, 110, 190, 150};
constexpr QColor nazevDucha{40, 90, 180};
constexpr QColor cisloSlotu{196, 190, 178};

} // namespace

void ZapisovaciOsnova::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    OsnovaPainter::papir(painter, rect());
    kresliSloty(painter);
    OsnovaPainter kresba(painter, mista_.mirka);
    kresba.linky(mista_.klic - 2, width() - 4);
    kresba.klic(mista_.klic);
    kresba.predznamenani(mista_.predznamenani, osnova_.predznamenani());
    kresliNoty(kresba);
    kresliNazvy(painter);
    if (!hasFocus()) return;
    painter.setPen(QPen(zamereni, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

void ZapisovaciOsnova::kresliSloty(QPainter& painter) const {
    const auto slot = osnova_.vybranySlot();
    if (!slot) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(vyberOkraj, 1));
    painter.setBrush(vyber);
    painter.drawRoundedRect(mista_.slot(*slot).adjusted(0.5, 3.5, -0.5, -2.5), 4, 4);
}

void ZapisovaciOsnova::kresliNoty(OsnovaPainter& kresba) const {
    const auto nota = [&](int slot, const PolohaNoty& poloha, const QColor& barva) {
        const QRectF misto = mista_.slot(slot);
        kresba.akordDoMista(misto.left() + 1, misto.right() - 1, rozvrhniAkord({poloha}), barva);
    };
    for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot) {
        const bool naCeste = duch_ && duch_->slot == slot;
        if (osnova_.nota(slot) && !naCeste)
            nota(slot, osnova_.nota(slot)->poloha,
                 zapis_.CervenaNota(slot) ? barvyOsnovy::mimoStupnici : barvyOsnovy::inkoust);
    }
    if (duch_) nota(duch_->slot, duch_->poloha, duchNoty);
}

void ZapisovaciOsnova::kresliNazvy(QPainter& painter) const {
    QFont pismo = font();
    pismo.setPixelSize(std::max(7, static_cast<int>(QFontMetrics(pismo).height() * 0.66)));
    painter.setFont(pismo);
    for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot) {
        QString text = nazevNoty(zapis_.ctenyNazev(slot));
        QColor barva = zapis_.CervenaNota(slot) ? barvyOsnovy::mimoStupnici : barvyOsnovy::inkoust;
        if (duch_ && duch_->slot == slot) {
            text = nazevNoty(nazevNaOsnove(duch_->poloha, osnova_.predznamenani()));
            barva = nazevDucha;
        } else if (!osnova_.nota(slot)) {
            text = QString::number(slot + 1);
            barva = cisloSlotu;
        }
        painter.setPen(barva);
        painter.drawText(mista_.nazev(slot), Qt::AlignCenter | Qt::TextDontClip, text);
    }
}

} // namespace zvonika
