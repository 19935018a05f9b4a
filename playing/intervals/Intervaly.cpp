#include "playing/intervals/Intervaly.h"

#include "board/TrebleBoard.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/NazevIntervalu.h"
#include "theory/NazvyTonu.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/VychodiskoIntervalu.h"
#include "theory/clsIntervaly.h"

#include <algorithm>

namespace zvonika {

namespace {

/// The lowest of the tones that the instrument has; unknown where there is none.
CisloTonu nejnizsi(const QStringList& tony) {
    CisloTonu nejnizsi;
    for (const QString& ton : tony)
        nejnizsi = std::min(nejnizsi, cisloTonu(ToneName(ton)));
    return nejnizsi;
}

QString nazevIntervalu(int kroky) {
    return NazevIntervalu(static_cast<std::int16_t>(kroky));
}

QString naZacatekVety(QString text) {
    text[0] = text[0].toUpper();
    return text;
}

QString vysledek(const VychodiskoIntervalu& vychodisko, const ZadaniIntervalu& zadani, const ToneName& nota) {
    const QString od = vychodisko.nazev.bezCarky(), interval = naZacatekVety(nazevIntervalu(zadani.kroky));
    if (!vychodisko.mimoStupnici)
        return QStringLiteral("%1 od tónu %2 ve stupnici %3 je %4.")
            .arg(interval, od, zadani.stupnice.text(), nota.bezCarky());
    const QString oktava = vychodisko.posun < 0   ? QStringLiteral(" o oktávu níž")
                           : vychodisko.posun > 0 ? QStringLiteral(" o oktávu výš")
                                                  : QString();
    return QStringLiteral("Odhad: %1 do stupnice %2 nepatří, stupně se počítají od %3%6. %4 od %1 je %5.")
        .arg(od, zadani.stupnice.text(), vychodisko.opora.bezCarky(), interval, nota.bezCarky(), oktava);
}

QString neniVeStupnici(const VychodiskoIntervalu& vychodisko, const Key& stupnice) {
    return QStringLiteral("Tón %1 ve stupnici %2 není, interval od něj nejde určit.")
        .arg(vychodisko.nazev.bezCarky(), stupnice.text());
}

Message zadnaSkladba() {
    return {QStringLiteral("Požadavek odmítnut !"),
            QStringLiteral("NENÍ OTEVŘENA ŽÁDNÁ SKLADBA !\n"
                           "Tlačítko, které bylo stisknuto má zobrazit zvolený interval od nejnižšího tónu\n"
                           "aktuálního, již dříve zapsaného hmatu. V tuto chvíli nelze tuto funkci "
                           "vykonat."),
            Icon::Critical};
}

Message tonMimoToninu(const QString& nota, const QString& tonina, const QString& interval) {
    return {QStringLiteral("Upozornění !!!"),
            QStringLiteral("Nota %1 nepatří do tóniny %2\n"
                           "Zásady pro určení intervalu ve stupnici nemohou být uplatněny !\n"
                           "Trváte-li i přesto na zobrazení intervalu %3 od noty %1\n"
                           "zvažte, zda není na místě změna aktuální tóniny.\n"
                           "Chcete se pokusit interval zobrazit ?")
                .arg(nota, tonina, interval),
            Icon::Question, Buttons::YesNo, Answer::No};
}

Message odhadBezZaruky() {
    return {
        QStringLiteral("Odhad bez záruky !"),
        QStringLiteral("Pro určení intervalu bude použita náhradní metoda na kterou se nelze spolehnout.\n\n"
                       "Určit interval bez příslušnosti k tónině je neproveditelné !"),
        Icon::Exclamation};
}

} // namespace

Intervaly::Intervaly(const OkoliIntervalu& okoli)
    : okoli_(okoli), zobrazeni_(okoli.diskant, okoli.osnova, okoli.dialogs), noty_(okoli.dialogs) {}

void Intervaly::cmdInterval() {
    ukazOdZvoleneho(okoli_.kroky);
}

void Intervaly::cmdSpodInterval() {
    ukazOdZvoleneho(-okoli_.kroky);
}

void Intervaly::cmdIntervalOdNejnizsiho() {
    zobrazeni_.odeber();
    if (!okoli_.pisen.otevrena()) {
        okoli_.dialogs.message(zadnaSkladba());
        return;
    }
    okoli_.pisen.excel().activateWindow(okoli_.pisen.aktualniPisen);
    const SongReader list(okoli_.pisen);
    const int radek = list.aktualniRadek();
    const Grip hmat = list.grip(radek);
    const CisloTonu ton = nejnizsi(hmat.tony);
    if (ton.jeVRozsahu())
        ukaz(ton, hmat.tonina, okoli_.kroky);
    else
        oznam(QStringLiteral("V řádku %1 není zapsán hmat s tónem, od kterého by šel interval určit.")
                  .arg(radek));
}

void Intervaly::ukazOdZvoleneho(int kroky) {
    zobrazeni_.odeber();
    const int oznaceny = okoli_.diskant.posledniOznaceny();
    const CisloTonu ton = oznaceny > 0 ? CisloTonu(oznaceny) : nejnizsi(okoli_.osnova.tony());
    if (ton.jeVRozsahu())
        ukaz(ton, okoli_.panel.lblStupnice, kroky);
    else
        oznam(QStringLiteral("Označte knoflík, klávesu nebo notu, od které se má interval ukázat."));
}

void Intervaly::ukaz(CisloTonu ton, const QString& toninaRadku, int kroky) {
    const auto tonina = stupnice(toninaRadku);
    if (!tonina) {
        oznam(QStringLiteral("Nejdříve zvolte tóninu (Ctrl+T): interval se počítá po stupních její "
                             "stupnice."));
        return;
    }
    const ZadaniIntervalu zadani{ton, *tonina, kroky};
    const VychodiskoIntervalu vychodisko = vychodiskoIntervalu(ton, *tonina, noty_);
    if (!vychodisko.mimoStupnici || chceOdhad(vychodisko, zadani)) spoctiAUkaz(vychodisko, zadani);
}

std::optional<Key> Intervaly::stupnice(const QString& toninaRadku) const {
    for (const Key& mozna : {okoli_.tonina.stupnice(), Key(toninaRadku)})
        if (const DurovaTonina* tonina = najdiToninu(mozna)) return tonina->key();
    return std::nullopt;
}

bool Intervaly::chceOdhad(const VychodiskoIntervalu& vychodisko, const ZadaniIntervalu& zadani) {
    const Message dotaz =
        tonMimoToninu(vychodisko.nazev.text(), zadani.stupnice.text(), nazevIntervalu(zadani.kroky));
    if (okoli_.dialogs.message(dotaz) != Answer::Yes) return false;
    okoli_.dialogs.message(odhadBezZaruky());
    return true;
}

void Intervaly::spoctiAUkaz(const VychodiskoIntervalu& vychodisko, const ZadaniIntervalu& zadani) {
    const clsIntervaly intervaly(okoli_.slozkaProgramu, okoli_.dialogs);
    ToneName nota;
    intervaly.UrciInterval(vychodisko.opora, zadani.stupnice,
                           static_cast<std::int16_t>(zadani.kroky + vychodisko.posun), false, nota);
    if (!nota.jePrazdny()) {
        if (zobrazeni_.ukaz(nota, noty_.UrciPolohuNoty(nota))) oznam(vysledek(vychodisko, zadani, nota));
    } else if (!intervaly.zna(vychodisko.opora, zadani.stupnice)) {
        oznam(intervaly.chyba().isEmpty() ? neniVeStupnici(vychodisko, zadani.stupnice) : intervaly.chyba());
    }
}

} // namespace zvonika
