#include "board/ui/Napis.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {
constexpr int nejmensiPismo = 6; // px
constexpr int krokSevreni = 8;   // percent
constexpr int nejuzsiPismo = 78; // percent of the normal width
constexpr qreal pismoVRadku =
    0.98; // letter size to line height: names have few descenders, lines may stand close
/// A mark of fingering comes from a song: left to its guess, the typesetting would take it for HTML.
QStaticText vysazeny(const QString& text) {
    QStaticText sazba(text);
    sazba.setTextFormat(Qt::PlainText);
    return sazba;
}

} // namespace

QString bezCarky(QString ton) {
    if (ton.endsWith(u',')) ton.chop(1);
    return ton;
}

void Napis::nastav(const QString& text) {
    if (text == text_) return;
    text_ = text;
    radky_.clear();
    rozvrzen_ = false;
    for (const auto cast : QStringView(text_).split(u'\n')) {
        const QString radek = bezCarky(cast.trimmed().toString());
        if (!radek.isEmpty()) radky_.push_back({radek, vysazeny(radek), {}, 0});
    }
}

qreal Napis::zmer(const QFontMetricsF& miry) {
    qreal nejsirsi = 0;
    for (Radek& radek : radky_) {
        radek.sirka = miry.horizontalAdvance(radek.text);
        nejsirsi = std::max(nejsirsi, radek.sirka);
    }
    return nejsirsi;
}

void Napis::zvolPismo(const QRectF& misto, const QFont& pismo) {
    pismo_ = pismo;
    pismo_.setPixelSize(
        std::max(nejmensiPismo, static_cast<int>(misto.height() / double(radky_.size()) * pismoVRadku)));
    qreal sirka = zmer(QFontMetricsF(pismo_));
    if (sirka <= misto.width()) return;
    // Narrow letters are read more easily than small ones. In few steps: every width costs a font of its own.
    const int sevreni = static_cast<int>(100 * misto.width() / sirka);
    pismo_.setStretch(std::max(nejuzsiPismo, sevreni - sevreni % krokSevreni));
    sirka = zmer(QFontMetricsF(pismo_));
    while (sirka > misto.width() && pismo_.pixelSize() > nejmensiPismo) {
        const int podleSirky = static_cast<int>(pismo_.pixelSize() * misto.width() / sirka);
        pismo_.setPixelSize(std::clamp(podleSirky, nejmensiPismo, pismo_.pixelSize() - 1));
        sirka = zmer(QFontMetricsF(pismo_));
    }
}

void Napis::rozvrhni(const QRectF& misto, const QFont& pismo, Qt::Alignment zarovnani) {
    misto_ = misto;
    zaklad_ = pismo;
    zarovnani_ = zarovnani;
    rozvrzen_ = true;
    zvolPismo(misto, pismo);
    const QFontMetricsF miry(pismo_);
    const qreal vyskaRadku = misto.height() / double(radky_.size());
    qreal stred = misto.top() + vyskaRadku / 2;
    for (Radek& radek : radky_) {
        const qreal volno = misto.width() - radek.sirka;
        const qreal x = zarovnani & Qt::AlignLeft ? 0 : zarovnani & Qt::AlignRight ? volno : volno / 2;
        // Centred by its capitals, but with the tail of a "g" still in the box.
        const qreal ucari = std::min(stred + miry.capHeight() / 2, misto.bottom() - miry.descent());
        radek.kde = QPointF(misto.left() + x, ucari - miry.ascent());
        stred += vyskaRadku;
    }
}

void Napis::kresli(QPainter& painter, const QRectF& misto, const QFont& pismo, const QColor& barva,
                   Qt::Alignment zarovnani) {
    if (radky_.isEmpty() || misto.isEmpty()) return;
    if (!rozvrzen_ || misto != misto_ || zarovnani != zarovnani_ || pismo != zaklad_)
        rozvrhni(misto, pismo, zarovnani);
    painter.setFont(pismo_);
    painter.setPen(barva);
    for (const Radek& radek : radky_)
        painter.drawStaticText(radek.kde, radek.sazba);
}

} // namespace zvonika
