#include "board/ui/BasKnoflik.h"

#include "board/BassBoard.h"

#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {

VyznamPrvku vyznam(StavBasu stav) {
    switch (stav) {
    case StavBasu::Volny:
        return VyznamPrvku::Volny;
    case StavBasu::Cerveny:
        return VyznamPrvku::Oznaceny;
    case StavBasu::Tah:
        return VyznamPrvku::Tah;
    case StavBasu::Tlak:
        return VyznamPrvku::Tlak;
    }
    return VyznamPrvku::Volny;
}

HmatovaZnacka hmat(ObrazBasu obraz) {
    switch (obraz) {
    case ObrazBasu::Bezny:
        return HmatovaZnacka::Zadna;
    case ObrazBasu::Mriz:
        return HmatovaZnacka::Mriz;
    case ObrazBasu::C:
        return HmatovaZnacka::Dulek;
    }
    return HmatovaZnacka::Zadna;
}

/// What of the name has room on the button: the caption of its run says which bass or chord it is.
QString zkratka(const QString& nazev) {
    const qsizetype konec =
        std::find_if(nazev.begin(), nazev.end(), [](QChar z) { return z == u'-' || z == u'/'; }) -
        nazev.begin();
    return konec > 0 ? nazev.left(konec) : nazev;
}

} // namespace

BasKnoflik::BasKnoflik(int n, const QString& nazev, const BassBoard& model,
                       std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent)
    : StiskaciPrvek(n, std::move(obrazy), parent), model_(model) {
    napis_.nastav(zkratka(nazev));
    obnov();
}

void BasKnoflik::obnov() {
    PodobaPrvku nova;
    nova.tvar = TvarPrvku::Pilulka;
    nova.vyznam = vyznam(model_.stav(cislo()));
    nova.popsany = true;
    nova.obtazeny = model_.oznacen(cislo()) && nova.vyznam != VyznamPrvku::Oznaceny;
    nova.hmat = hmat(model_.nastroj().bas(cislo()).obraz);
    prevezmi(nova, model_.oznacen(cislo()));
}

void BasKnoflik::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    kresliObraz(painter, rect());
    const qreal v = height();
    QRectF misto = QRectF(rect()).adjusted(v * 0.34, v * 0.12, -v * 0.34, -v * 0.18);
    if (podoba().vyznam == VyznamPrvku::Tah) misto.setLeft(v * 0.66);
    if (podoba().vyznam == VyznamPrvku::Tlak) misto.setRight(width() - v * 0.66);
    misto.adjust(0, v * 0.04, 0, -v * 0.02);
    QFont pismo = font();
    pismo.setBold(podoba().vyznam != VyznamPrvku::Volny || podoba().hmat != HmatovaZnacka::Zadna);
    napis_.kresli(painter, misto, pismo, barvaNapisu(podoba()));
    kresliZamereni(painter, QRectF(rect()).adjusted(1.5, 1, -1.5, -2), v / 2);
}

} // namespace zvonika
