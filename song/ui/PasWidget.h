#pragma once

#include "song/Pas.h"
#include "theory/ui/MirkaOsnovy.h"

#include <QPixmap>
#include <QWidget>

namespace zvonika {

class ElidovanyPopisek;
class OsnovaPainter;

/// The strip `pas`: sixteen consecutive grips on one staff, above each the number of its row and the
/// direction of the bellows, below it its syllable in `lblSlabika2(1)` to `lblSlabika2(16)`. The current one
/// is red on a soft column.
class PasWidget : public QWidget {
    Q_OBJECT
public:
    explicit PasWidget(Pas& pas, QWidget* parent = nullptr);

    /// Column of a position, 1..16.
    QRect sloupec(int pozice) const;
    /// How often notes have been drawn anew; a step of the highlight draws none.
    int prekresleni() const { return prekresleni_; }
    QSize sizeHint() const override { return {532, 195}; }

Q_SIGNALS:
    /// The user clicked position 1..16.
    void zvolenaPozice(int pozice);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void prevezmiObsah();
    void prevezmiPosun();
    void rozmisti();
    void zvyrazni(int pozice, bool soucasna);
    QString popis(int pozice) const;
    void kresliObsah();
    QFont pismoCisel() const;
    void kresliHlavicku(QPainter& painter, int pozice) const;

    Pas& pas_;
    std::array<ElidovanyPopisek*, delkaPasu> slabiky_{};
    MirkaOsnovy mirka_;
    int zvyraznena_ = 0; ///< 0: none
    QPixmap obsah_;      ///< everything but paper, highlight and syllables
    int prekresleni_ = 0;
};

} // namespace zvonika
