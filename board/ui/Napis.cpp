#include "board/ui/Napis.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {
constexpr int nejmensiPismo = 6; // px
constexpr int nejuzsiPismo = 78; // percent of the normal width
constexpr qreal pismoVRadku =
    0.98; // letter size to line height: names have few descenders, lines may stand close
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
        if (!radek.isEmpty()) radky_.push_back({radek, QStaticText(radek), {}});
    }
}

void Napis::rozvrhni(const QRectF& misto, const QFont& pismo, Qt::Alignment zarovnani) {
    misto_ = misto;
    zaklad_ = pismo;
    zarovnani_ = zarovnani;
    rozvrzen_ = true;
    const qreal vyskaRadku = misto.height() / double(radky_.size());
    pismo_ = pismo;
    pismo_.setPixelSize(std::max(nejmensiPismo, static_cast<int>(vyskaRadku * pismoVRadku)));
    const auto sirka = [this](const QFontMetricsF& miry) {
        qreal nejsirsi = 0;
        for (const Radek& radek : radky_)
            nejsirsi = std::max(nejsirsi, miry.horizontalAdvance(radek.text));
        return nejsirsi;
    };
    QFontMetricsF miry(pismo_);
    // Narrow letters are read more easily than small ones.
    if (sirka(miry) > misto.width()) {
        pismo_.setStretch(std::max(nejuzsiPismo, static_cast<int>(100 * misto.width() / sirka(miry))));
        miry = QFontMetricsF(pismo_);
    }
    while (sirka(miry) > misto.width() && pismo_.pixelSize() > nejmensiPismo) {
        const int podleSirky = static_cast<int>(pismo_.pixelSize() * misto.width() / sirka(miry));
        pismo_.setPixelSize(std::clamp(podleSirky, nejmensiPismo, pismo_.pixelSize() - 1));
        miry = QFontMetricsF(pismo_);
    }
    qreal stred = misto.top() + vyskaRadku / 2;
    for (Radek& radek : radky_) {
        const qreal volno = misto.width() - miry.horizontalAdvance(radek.text);
        const qreal x = zarovnani & Qt::AlignLeft ? 0 : zarovnani & Qt::AlignRight ? volno : volno / 2;
        // Centred by its capitals, but with the tail of a "g" still in the box.
        const qreal ucari = std::min(stred + miry.capHeight() / 2, misto.bottom() - miry.descent());
        radek.kde = QPointF(misto.left() + x, ucari - miry.ascent());
        radek.sazba.prepare({}, pismo_);
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
