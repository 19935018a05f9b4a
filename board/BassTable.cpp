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

BassTable::BassTable(const QString& slozkaProgramu, int pocetBasu)
    : soubor_(slozkaProgramu + QStringLiteral("/tonavox.xml")),
      nazvy_(static_cast<std::size_t>(pocetBasu) + 1) {
    nacti();
}

bool BassTable::nacti() {
    nazvy_.assign(nazvy_.size(), {});
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
    const auto pocetBasu = static_cast<qsizetype>(nazvy_.size()) - 1;
    const auto chybi = pocetBasu - cisla_.size();
    if (chybi > 0) vady << QStringLiteral("nezná %1 ze %2 basových knoflíků").arg(chybi).arg(pocetBasu);
    if (vadnych > 0) vady << QStringLiteral("má vadné nebo opakované položky (%1)").arg(vadnych);
    return vady.isEmpty() ? QString() : jmenoTabulky + u' ' + vady.join(QStringLiteral(" a ")) + u'.';
}

bool BassTable::pridej(int bas, const QString& nazev) {
    if (!jeKnoflik(bas) || nazev.isEmpty()) return false;
    QString& misto = nazvy_.at(static_cast<std::size_t>(bas));
    if (!misto.isEmpty() || cisla_.contains(nazev)) return false;
    misto = nazev;
    cisla_.insert(nazev, bas);
    return true;
}

QString BassTable::nazev(int bas) const {
    return jeKnoflik(bas) ? nazvy_.at(static_cast<std::size_t>(bas)) : QString();
}

} // namespace zvonika
