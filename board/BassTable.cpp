#include "board/BassTable.h"

#include "platform/XmlTable.h"

#include <QStringList>

namespace zvonika {

namespace {

const auto jmenoTabulky = QStringLiteral("Tabulka basů tonavox.xml");

QString textPolozky(const pugi::xml_node& polozka, const char* jmeno) {
    return QString::fromUtf8(polozka.child(jmeno).text().get()).trimmed();
}

} // namespace

BassTable::BassTable(const QString& slozkaProgramu)
    : soubor_(slozkaProgramu + QStringLiteral("/tonavox.xml")) {
    nacti();
}

bool BassTable::nacti() {
    nazvy_.fill({});
    cisla_.clear();
    pugi::xml_document dokument;
    chyba_ = loadXmlTable(soubor_, jmenoTabulky, dokument);
    if (chyba_.isEmpty()) chyba_ = nactiPolozky(dokument);
    return chyba_.isEmpty();
}

QString BassTable::nactiPolozky(const pugi::xml_document& dokument) {
    int vadnych = 0;
    for (const auto& nalez : dokument.select_nodes("//knoflik"))
        if (!pridej(textPolozky(nalez.node(), "cislo").toInt(), textPolozky(nalez.node(), "bas"))) ++vadnych;

    QStringList vady;
    const auto chybi = pocetBasu - cisla_.size();
    if (chybi > 0) vady << QStringLiteral("nezná %1 ze %2 basových knoflíků").arg(chybi).arg(pocetBasu);
    if (vadnych > 0) vady << QStringLiteral("má vadné nebo opakované položky (%1)").arg(vadnych);
    return vady.isEmpty() ? QString() : jmenoTabulky + u' ' + vady.join(QStringLiteral(" a ")) + u'.';
}

bool BassTable::pridej(int bas, const QString& nazev) {
    if (bas < 1 || bas > pocetBasu || nazev.isEmpty()) return false;
    QString& misto = nazvy_.at(static_cast<std::size_t>(bas));
    if (!misto.isEmpty() || cisla_.contains(nazev)) return false;
    misto = nazev;
    cisla_.insert(nazev, bas);
    return true;
}

QString BassTable::nazev(int bas) const {
    return bas < 1 || bas > pocetBasu ? QString() : nazvy_.at(static_cast<std::size_t>(bas));
}

} // namespace zvonika
