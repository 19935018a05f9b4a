#include "board/ui/KnoflikDiskantu.h"

#include "board/TrebleBoard.h"

#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {

VyznamPrvku vyznam(StavKnofliku stav) {
    switch (stav) {
    case StavKnofliku::Volny:
        return VyznamPrvku::Volny;
    case StavKnofliku::Cerveny:
        return VyznamPrvku::Oznaceny;
    case StavKnofliku::Tah:
        return VyznamPrvku::Tah;
    case StavKnofliku::Tlak:
        return VyznamPrvku::Tlak;
    case StavKnofliku::Hnedy:
        return VyznamPrvku::Interval;
    }
    return VyznamPrvku::Volny;
}

} // namespace

KnoflikDiskantu::KnoflikDiskantu(int n, bool pomocny, const TrebleBoard& model,
                                 std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent)
    : StiskaciPrvek(n, std::move(obrazy), parent), pomocny_(pomocny), model_(model) {
    obnov();
}

void KnoflikDiskantu::obnov() {
    const int n = cislo();
    const QString& text = pomocny_ ? model_.popisPomocneho(n) : model_.popis(n);
    if (text != napis_.text()) {
        napis_.nastav(text);
        update();
    }
    PodobaPrvku nova;
    nova.vyznam = vyznam(pomocny_ ? model_.stavPomocneho(n) : model_.stav(n));
    nova.tmavy = model_.nastroj().knoflik(n).pulton;
    nova.popsany = !napis_.prazdny();
    nova.obtazeny = model_.oznacen(n) && nova.vyznam != VyznamPrvku::Oznaceny;
    prevezmi(nova, model_.oznacen(n));
}

QRect KnoflikDiskantu::mistoObrazu() const {
    // A square picture: rounding of the widget's edges must not make one button rounder than its neighbour.
    const Nastroj& nastroj = model_.nastroj();
    const int strana = std::min(width(), height()) * nastroj.sirkaKnofliku / nastroj.klikaciPlocha;
    return QRect((width() - strana) / 2, 0, strana, strana);
}

QRectF KnoflikDiskantu::mistoNapisu(const QRectF& obraz) const {
    const qreal d = obraz.height() * 0.86;
    const QPointF stred(obraz.center().x(), obraz.top() + obraz.height() * 0.47);
    // The more lines, the more of the height and the less of the width a circle has to give.
    struct Pomer {
        qreal sirka, vyska;
    };
    constexpr Pomer pomery[] = {{0.78, 0.42}, {0.7, 0.74}, {0.6, 0.76}};
    const Pomer pomer = pomery[std::clamp<qsizetype>(napis_.pocetRadku() - 1, 0, 2)];
    QRectF misto(0, 0, d * pomer.sirka, d * pomer.vyska);
    misto.moveCenter(stred);
    if (podoba().vyznam == VyznamPrvku::Interval) misto.setWidth(d * 0.62), misto.moveCenter(stred);
    const qreal sipka = d * 0.19;
    if (podoba().vyznam == VyznamPrvku::Tah) misto.setLeft(misto.left() + sipka);
    if (podoba().vyznam == VyznamPrvku::Tlak) misto.setRight(misto.right() - sipka);
    return misto;
}

void KnoflikDiskantu::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect obraz = mistoObrazu();
    kresliObraz(painter, obraz);
    QFont pismo = font();
    pismo.setBold(true);
    napis_.kresli(painter, mistoNapisu(obraz), pismo, barvaNapisu(podoba()));
    const qreal prumer = obraz.height() * 0.96;
    kresliZamereni(painter, QRectF(obraz.center().x() - prumer / 2 + 0.5, 0.5, prumer, prumer), prumer / 2);
}

} // namespace zvonika
