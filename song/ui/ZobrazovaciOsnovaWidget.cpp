#include "song/ui/ZobrazovaciOsnovaWidget.h"

#include "song/ZobrazovaciOsnova.h"
#include "theory/ui/OsnovaPainter.h"
#include "theory/ui/PolohaNazvu.h"

#include <QPainter>

#include <algorithm>

namespace zvonika {

namespace {

constexpr double kraj = 0.5;              ///< staff spaces
constexpr double beznaSirkaAkordu = 3.4;  ///< staff spaces that a chord has at least
constexpr double nejvetsiSirkaAkordu = 5; ///< wider chords are drawn smaller

/// The sign that must stand in front of the note when the signature is shown.
PolohaNoty vedlePredznamenani(PolohaNoty poloha, const Predznamenani& predznamenani) {
    const Znamenko dane = predznamenani.proPolohu(poloha.jednotky);
    if (dane == Znamenko::Zadne) return poloha;
    if (poloha.znamenko == dane)
        poloha.znamenko = Znamenko::Zadne;
    else if (poloha.znamenko == Znamenko::Zadne)
        poloha.znamenko = Znamenko::Odrazka;
    return poloha;
}

} // namespace

ZobrazovaciOsnovaWidget::ZobrazovaciOsnovaWidget(ZobrazovaciOsnova& osnova, QWidget* parent)
    : QWidget(parent), osnova_(osnova) {
    setObjectName(QStringLiteral("osnova"));
    setAccessibleName(QStringLiteral("Noty hmatu"));
    connect(&osnova_, &ZobrazovaciOsnova::zmeneno, this, &ZobrazovaciOsnovaWidget::rozvrhni);
    rozvrhni();
}

void ZobrazovaciOsnovaWidget::nastavStupnici(const Key& stupnice) {
    const Predznamenani nove(stupnice);
    if (nove == predznamenani_) return;
    predznamenani_ = nove;
    rozvrhni();
}

void ZobrazovaciOsnovaWidget::rozvrhni() {
    QVector<PolohaNoty> polohy = polohyNazvu(osnova_.tony());
    for (PolohaNoty& poloha : polohy)
        poloha = vedlePredznamenani(poloha, predznamenani_);
    std::optional<PolohaNoty> interval;
    if (osnova_.interval()) interval = vedlePredznamenani(osnova_.interval()->poloha, predznamenani_);
    akord_ = rozvrhniAkord(polohy, interval);
    setAccessibleDescription(popisNot());
    update();
}

QString ZobrazovaciOsnovaWidget::popisNot() const {
    QStringList noty = osnova_.tony();
    if (osnova_.interval()) noty << QStringLiteral("interval ") + osnova_.interval()->nazev;
    return noty.isEmpty() ? QStringLiteral("žádné") : noty.join(u' ').remove(u',');
}

void ZobrazovaciOsnovaWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    OsnovaPainter::papir(painter, rect());
    const double hlava =
        kraj + OsnovaPainter::sirkaKlice + kraj + OsnovaPainter::sirkaPredznamenani(predznamenani_);
    const double sirkaAkordu = std::clamp(akord_.sirka(), beznaSirkaAkordu, nejvetsiSirkaAkordu);
    const double nejvice = (width() - 4) / (hlava + kraj + sirkaAkordu + kraj);
    const auto mirka =
        MirkaOsnovy::proPole(QRectF(rect()).adjusted(0, 2, 0, -2), nejvice, devicePixelRatioF());
    OsnovaPainter kresba(painter, mirka);
    kresba.linky(4, width() - 4);
    kresba.klic(2 + kraj * mirka.mezera);
    kresba.predznamenani(2 + (2 * kraj + OsnovaPainter::sirkaKlice) * mirka.mezera, predznamenani_);
    kresba.akordDoMista(2 + (hlava + kraj / 2) * mirka.mezera, width() - 2 - kraj * mirka.mezera, akord_,
                        barvyOsnovy::inkoust);
}

} // namespace zvonika
