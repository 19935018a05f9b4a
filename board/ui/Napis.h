#pragma once

#include <QFont>
#include <QStaticText>
#include <QString>
#include <QVector>

class QFontMetricsF;
class QPainter;

namespace zvonika {

/// A short caption of one or more lines that is always drawn whole: its letters are made as large as its box
/// allows, up to the given share of the line, and laid out again only when text, box or font change.
class Napis {
public:
    /// Lines end with "\r\n" or "\n"; empty ones are left out.
    void nastav(const QString& text);
    const QString& text() const { return text_; }
    bool prazdny() const { return radky_.isEmpty(); }
    qsizetype pocetRadku() const { return radky_.size(); }

    void kresli(QPainter& painter, const QRectF& misto, const QFont& pismo, const QColor& barva,
                Qt::Alignment zarovnani = Qt::AlignHCenter);
    /// Letter height in pixels that the last drawing used.
    int velikostPisma() const { return pismo_.pixelSize(); }

private:
    struct Radek {
        QString text;
        QStaticText sazba;
        QPointF kde;
        qreal sirka = 0;
    };
    qreal zmer(const QFontMetricsF& miry);
    void zvolPismo(const QRectF& misto, const QFont& pismo);
    void rozvrhni(const QRectF& misto, const QFont& pismo, Qt::Alignment zarovnani);

    QString text_;
    QVector<Radek> radky_;
    QRectF misto_;
    QFont zaklad_, pismo_;
    Qt::Alignment zarovnani_;
    bool rozvrzen_ = false;
};

/// A tone name as it is read: without the comma that ends it wherever it is stored.
QString bezCarky(QString ton);

} // namespace zvonika
