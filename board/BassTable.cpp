#include "board/BassTable.h"

#include <QFile>
#include <QStringList>

#include <pugixml.hpp>

namespace zvonika {

namespace {

const auto nadpisChyby = QStringLiteral("Tabulka basů tonavox.xml ");

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
    QByteArray obsah;
    chyba_ = nactiSoubor(obsah);
    if (chyba_.isEmpty()) chyba_ = nactiPolozky(obsah);
    return chyba_.isEmpty();
}

QString BassTable::nactiSoubor(QByteArray& obsah) const {
    QFile soubor(soubor_);
    if (!soubor.exists()) return nadpisChyby + QStringLiteral("nebyla ve složce programu nalezena.");
    // The system's own words would come in its language, not the user's.
    if (!soubor.open(QIODevice::ReadOnly))
        return nadpisChyby + QStringLiteral("nejde přečíst: není to soubor, nebo k němu nemáte oprávnění.");
    obsah = soubor.readAll();
    return {};
}

QString BassTable::nactiPolozky(const QByteArray& obsah) {
    pugi::xml_document dokument;
    if (!dokument.load_buffer(obsah.constData(), static_cast<std::size_t>(obsah.size())))
        return nadpisChyby + QStringLiteral("je poškozená a nejde přečíst.");

    int vadnych = 0;
    for (const auto& nalez : dokument.select_nodes("//knoflik"))
        if (!pridej(textPolozky(nalez.node(), "cislo").toInt(), textPolozky(nalez.node(), "bas"))) ++vadnych;

    QStringList vady;
    const auto chybi = pocetBasu - cisla_.size();
    if (chybi > 0) vady << QStringLiteral("nezná %1 ze %2 basových knoflíků").arg(chybi).arg(pocetBasu);
    if (vadnych > 0) vady << QStringLiteral("má vadné nebo opakované položky (%1)").arg(vadnych);
    return vady.isEmpty() ? QString() : nadpisChyby + vady.join(QStringLiteral(" a ")) + u'.';
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
