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

} // namespace

ZobrazovaciOsnovaWidget::ZobrazovaciOsnovaWidget(ZobrazovaciOsnova& osnova, QWidget* parent)
    : QWidget(parent), osnova_(osnova) {
    setObjectName(QStringLiteral("osnova"));
    setAccessibleName(QStringLiteral("Noty hmatu"));
    connect(&osnova_, &ZobrazovaciOsnova::zmeneno, this, &ZobrazovaciOsnovaWidget::rozvrhni);
    rozvrhni();
}

void ZobrazovaciOsnovaWidget::rozvrhni() {
    std::optional<PolohaNoty> interval;
    if (osnova_.interval()) interval = osnova_.interval()->poloha;
    akord_ = rozvrhniAkord(polohyNazvu(osnova_.tony()), interval);
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
    const double hlava = kraj + OsnovaPainter::sirkaKlice + kraj;
    const double sirkaAkordu = std::clamp(akord_.sirka(), beznaSirkaAkordu, nejvetsiSirkaAkordu);
    const double nejvice = (width() - 4) / (hlava + kraj + sirkaAkordu + kraj);
    const auto mirka =
        MirkaOsnovy::proPole(QRectF(rect()).adjusted(0, 2, 0, -2), nejvice, devicePixelRatioF());
    OsnovaPainter kresba(painter, mirka);
    kresba.linky(4, width() - 4);
    kresba.klic(2 + kraj * mirka.mezera);
    kresba.akordDoMista(2 + (hlava + kraj / 2) * mirka.mezera, width() - 2 - kraj * mirka.mezera, akord_,
                        barvyOsnovy::inkoust);
}

} // namespace zvonika
