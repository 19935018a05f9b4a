#include "app/RozvodPrikazu.h"

#include "app/Prikazy.h"
#include "song/CommandStates.h"

#include <QSet>
#include <QStringList>

#include <stdexcept>

namespace zvonika {

namespace {

QSet<QString> prikazyTabulek() {
    QSet<QString> prikazy;
    for (const TlacitkoPrikazu& tlacitko : tlacitkaPrikazu())
        prikazy.insert(tlacitko.jmeno);
    for (const Menu& menu : menuPrikazu())
        for (const PolozkaMenu& polozka : menu.polozky)
            if (!polozka.jmeno.isEmpty()) prikazy.insert(polozka.prikaz);
    return prikazy;
}

} // namespace

RozvodPrikazu::RozvodPrikazu(const CommandStates& stavy, ObsluhyPrikazu obsluhy)
    : stavy_(stavy), obsluhy_(std::move(obsluhy)) {
    const QSet<QString> prikazy = prikazyTabulek();
    const QSet<QString> obslouzene(obsluhy_.keyBegin(), obsluhy_.keyEnd());
    const QSet<QString> navic = (prikazy - obslouzene) + (obslouzene - prikazy);
    if (!navic.isEmpty())
        throw std::logic_error("commands and handlers that miss each other: " +
                               QStringList(navic.values()).join(u' ').toStdString());
}

void RozvodPrikazu::proved(const QString& prikaz) const {
    const std::function<void()> obsluha = obsluhy_.value(prikaz);
    if (obsluha && stavy_.povolen(prikaz)) obsluha();
}

} // namespace zvonika
