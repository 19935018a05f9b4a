#include "playing/recording/PrevzetiHmatu.h"

#include "board/BassTable.h"
#include "playing/recording/CekajiciPrsty.h"
#include "playing/stepping/RozdilTonin.h"
#include "theory/NazvyTonu.h"
#include "theory/Tonina.h"
#include "theory/clsNotyZapis.h"

#include <algorithm>

namespace zvonika {

namespace {

bool obsahuje(const std::vector<int>& cisla, int cislo) {
    return std::find(cisla.begin(), cisla.end(), cislo) != cisla.end();
}

QString vetaONeprevzatych(const QStringList& tony, const QStringList& basy, const QStringList& prsty) {
    QStringList co;
    if (!tony.isEmpty()) co.append(QStringLiteral("tón ") + tony.join(u' '));
    if (!basy.isEmpty()) co.append(QStringLiteral("bas ") + basy.join(u' '));
    for (const QString& prst : prsty)
        co.append(QStringLiteral("prst ") + slovyPrst(prst));
    return co.isEmpty()
               ? QString()
               : QStringLiteral("Převzít nejde a zápisem zmizí: %1.").arg(co.join(QStringLiteral(", ")));
}

QString vetaOPrevzeti(int radek, SmerMechu smer) {
    switch (smer) {
    case SmerMechu::Tah:
        return QStringLiteral("Hmat %1 na tah je převzat k opravě, zapíše ho F7, otočí na tlak F8.")
            .arg(radek);
    case SmerMechu::Tlak:
        return QStringLiteral("Hmat %1 na tlak je převzat k opravě, zapíše ho F8, otočí na tah F7.")
            .arg(radek);
    case SmerMechu::Neuveden:
        break;
    }
    return QStringLiteral("Hmat %1 je převzat k opravě, zapíše ho F7 na tah, F8 na tlak.").arg(radek);
}

} // namespace

PrevzetiHmatu::PrevzetiHmatu(const OkoliPisne& okoli, const ModelyHmatu& modely, const BassTable& tabulka,
                             const Tonina& tonina)
    : okoli_(okoli), list_(okoli.pisen), modely_(modely), tabulka_(tabulka), tonina_(tonina),
      polohy_(okoli.dialogs) {}

bool PrevzetiHmatu::mnuPrevzitHmat() {
    const int radek = list_.zacniZapis();
    const Grip hmat = list_.grip(radek);
    okoli_.panel.upozorneni = hmat.prazdny()
                                  ? QStringLiteral("Na řádku %1 žádný hmat není, není co převzít.").arg(radek)
                                  : QStringList{ztrataToniny(hmat.tonina, tonina_.stupnice()),
                                                vetaOPrevzeti(radek, smerMechu(hmat.smer)), prevezmi(hmat)}
                                        .join(u' ')
                                        .simplified();
    return !hmat.prazdny();
}

/// What cannot be taken over, in a sentence; "" where all of it can.
QString PrevzetiHmatu::prevezmi(const Grip& hmat) {
    QStringList ciziTony;
    QStringList ciziBasy;
    oznacTony(ocislujTony(hmat.tony, ciziTony));
    oznacBasy(ocislujBasy(hmat.basy, ciziBasy));
    modely_.prstoklad.prevezmi(hmat.prstoklad);
    QStringList ciziPrsty = modely_.prstoklad.zaznamy();
    const QStringList prevzate = modely_.prstoklad.zaznamy(modely_.diskant.oznacene());
    ciziPrsty.removeIf([&](const QString& prst) { return prevzate.contains(prst); });
    return vetaONeprevzatych(ciziTony, ciziBasy, ciziPrsty);
}

std::vector<int> PrevzetiHmatu::ocislujTony(const QStringList& tony, QStringList& cizi) {
    std::vector<int> cisla;
    for (const QString& ton : tony) {
        const CisloTonu cislo = cisloTonu(ToneName(ton));
        if (cislo.jeVRozsahu())
            cisla.push_back(cislo.hodnota());
        else
            cizi.append(ToneName(ton).bezCarky());
    }
    return cisla;
}

std::vector<int> PrevzetiHmatu::ocislujBasy(const QStringList& basy, QStringList& cizi) const {
    std::vector<int> cisla;
    for (const QString& bas : basy) {
        if (const int cislo = tabulka_.cislo(bas); cislo > 0)
            cisla.push_back(cislo);
        else
            cizi.append(bas);
    }
    return cisla;
}

void PrevzetiHmatu::oznacTony(const std::vector<int>& tony) {
    modely_.osnova.odeberNoty();
    for (int n = CisloTonu::nejnizsi; n <= CisloTonu::nejvyssi; ++n)
        if (modely_.diskant.oznacen(n) && !obsahuje(tony, n)) modely_.diskant.nastavZnacku(n, false);
    for (const int n : tony) {
        modely_.diskant.nastavZnacku(n, true);
        zakresli(CisloTonu(n));
    }
}

void PrevzetiHmatu::oznacBasy(const std::vector<int>& basy) {
    for (const int bas : modely_.basy.oznacene())
        if (!obsahuje(basy, bas)) modely_.basy.nastavZnacku(bas, false);
    for (const int bas : basy)
        modely_.basy.nastavZnacku(bas, true);
}

/// As `OvereniNoty` has it drawn where the player wants it in spite of the key.
void PrevzetiHmatu::zakresli(CisloTonu ton) {
    const auto [nazev, mimoStupnici] = nazevTonu(ton, tonina_.stupnice());
    modely_.diskant.nastavTonKlavesy(ton.hodnota(), nazev.text());
    const auto poloha = PolohaNoty::zTextu(polohy_.UrciPolohuNoty(nazev));
    if (poloha)
        modely_.noty.zakresliNotu({ton, nazev, *poloha, mimoStupnici && poloha->znamenko == Znamenko::Zadne});
}

} // namespace zvonika
