#include "app/ui/PrikazoveTlacitko.h"

#include "theory/ui/BarvyVyznamu.h"

#include <QPainter>
#include <QPainterPath>

namespace zvonika {

namespace {

constexpr int vlajkyPopisku = Qt::AlignCenter | Qt::TextWordWrap;
constexpr QMargins okraje(3, 2, 3, 3);
constexpr int nejmensiPismo = 7;         // px
constexpr double nejvetsiUstupek = 0.75; // of what a caption could have by itself

QColor zakladniBarva(PrikazoveTlacitko::Vyznam vyznam) {
    switch (vyznam) {
    case PrikazoveTlacitko::Vyznam::Tah:
        return barvyTahu::prikaz;
    case PrikazoveTlacitko::Vyznam::Tlak:
        return barvyTlaku::prikaz;
    case PrikazoveTlacitko::Vyznam::Hlavni:
        return QColor(0xFB, 0xEE, 0xD2);
    case PrikazoveTlacitko::Vyznam::Bezny:
        break;
    }
    return QColor(0xFB, 0xFA, 0xF7);
}

bool jeTmava(const QColor& barva) {
    return qGray(barva.rgb()) < 128;
}

QPainterPath sipka(const QRectF& misto) {
    const double vyska = misto.height() * 0.52;
    const QPointF stred = misto.center();
    QPainterPath obrys(stred + QPointF(-vyska / 2, -vyska / 2));
    obrys.lineTo(stred + QPointF(vyska / 2, 0));
    obrys.lineTo(stred + QPointF(-vyska / 2, vyska / 2));
    obrys.closeSubpath();
    return obrys;
}

QRectF ctverec(const QRectF& misto) {
    const double strana = misto.height() * 0.44;
    return QRectF(misto.center() - QPointF(strana / 2, strana / 2), QSizeF(strana, strana));
}

/// A pair of quavers: two heads, two stems, one beam.
QPainterPath nota(const QRectF& misto) {
    const double v = misto.height() * 0.8;
    const QPointF o(misto.center().x() - v * 0.4, misto.center().y() - v / 2);
    QPainterPath obrys;
    obrys.setFillRule(Qt::WindingFill);
    for (const double x : {0.0, 0.5}) {
        obrys.addEllipse(QRectF(o.x() + x * v, o.y() + 0.72 * v, 0.32 * v, 0.24 * v));
        obrys.addRect(QRectF(o.x() + (x + 0.25) * v, o.y() + 0.08 * v, 0.07 * v, 0.76 * v));
    }
    obrys.addRect(QRectF(o.x() + 0.25 * v, o.y() + 0.06 * v, 0.57 * v, 0.13 * v));
    return obrys;
}

} // namespace

PrikazoveTlacitko::PrikazoveTlacitko(const QString& popisek, Vyznam vyznam, QWidget* parent)
    : QPushButton(popisek, parent), vyznam_(vyznam) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void PrikazoveTlacitko::nastavBarvu(std::optional<QColor> barva) {
    if (barva_ == barva) return;
    barva_ = barva;
    update();
}

void PrikazoveTlacitko::nastavObrazek(Obrazek obrazek) {
    obrazek_ = obrazek;
    update();
}

QColor PrikazoveTlacitko::plocha() const {
    QColor barva = isEnabled() ? barva_.value_or(zakladniBarva(vyznam_)) : QColor(0xEC, 0xEA, 0xE4);
    if (isDown() || isChecked()) return barva.darker(115);
    return isEnabled() && underMouse() ? barva.lighter(barva_ ? 112 : 103) : barva;
}

void PrikazoveTlacitko::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF telo = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -1.25);
    const double polomer = std::min(6.0, telo.height() / 5);
    const QColor barva = plocha();
    QLinearGradient stin(telo.topLeft(), telo.bottomLeft());
    stin.setColorAt(0, barva.lighter(104));
    stin.setColorAt(1, barva.darker(isDown() ? 100 : 106));
    painter.setPen(QPen(isEnabled() ? QColor(0xA8, 0x9F, 0x8E) : QColor(0xCF, 0xCA, 0xC0), 1));
    painter.setBrush(stin);
    painter.drawRoundedRect(telo, polomer, polomer);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(0x2B, 0x5F, 0xB8), 2));
        painter.drawRoundedRect(telo.adjusted(1.5, 1.5, -1.5, -1.5), polomer - 1, polomer - 1);
    }
    QColor pismo = jeTmava(barva) ? QColor(Qt::white) : QColor(0x22, 0x1E, 0x18);
    if (!isEnabled()) pismo = QColor(0x9A, 0x94, 0x88);
    const QRect misto = rect().marginsRemoved(okraje);
    if (text().isEmpty()) {
        kresliObrazek(painter, misto, pismo);
        return;
    }
    if (obrazek_ != Obrazek::Zadny)
        kresliObrazek(painter, {misto.topLeft(), QSize(misto.height() * 3 / 4, misto.height())}, pismo);
    kresliPopisek(painter, mistoPopisku(), pismo);
}

void PrikazoveTlacitko::kresliObrazek(QPainter& painter, const QRect& misto, const QColor& barva) {
    switch (obrazek_) {
    case Obrazek::Sipka:
    case Obrazek::Spustit:
        painter.fillPath(sipka(misto), barva);
        break;
    case Obrazek::Nota:
        painter.fillPath(nota(misto), barva);
        break;
    case Obrazek::Zastavit:
        painter.fillRect(ctverec(misto), barva);
        break;
    case Obrazek::Zadny:
        break;
    }
}

/// Beside the picture, where there is one.
QRect PrikazoveTlacitko::mistoPopisku() const {
    QRect misto = rect().marginsRemoved(okraje);
    if (obrazek_ != Obrazek::Zadny) misto.setLeft(misto.left() + misto.height() * 3 / 4);
    return misto;
}

int PrikazoveTlacitko::vlastniPismo() {
    const QRect misto = mistoPopisku();
    Prizpusobene& p = prizpusobene_;
    if (p.zaklad == font() && p.text == text() && p.misto == misto.size()) return p.velikost;
    p = {font().pixelSize(), font(), text(), misto.size()};
    for (QFont pismo = p.zaklad; p.velikost > nejmensiPismo; --p.velikost) {
        pismo.setPixelSize(p.velikost);
        const QRect potreba = QFontMetrics(pismo).boundingRect(misto, vlajkyPopisku, text());
        if (potreba.width() <= misto.width() && potreba.height() <= misto.height()) break;
    }
    return p.velikost;
}

int PrikazoveTlacitko::spolecnePismo() {
    const int vlastni = vlastniPismo();
    int spolecne = vlastni;
    for (PrikazoveTlacitko* soused : sousede_) {
        const int jeho = soused->text().isEmpty() ? vlastni : soused->vlastniPismo();
        if (jeho >= vlastni * nejvetsiUstupek) spolecne = std::min(spolecne, jeho);
    }
    return spolecne;
}

void PrikazoveTlacitko::kresliPopisek(QPainter& painter, const QRect& misto, const QColor& barva) {
    QFont pismo = font();
    pismo.setPixelSize(spolecnePismo());
    painter.setFont(pismo);
    painter.setPen(barva);
    painter.drawText(misto, vlajkyPopisku, text());
}

} // namespace zvonika
