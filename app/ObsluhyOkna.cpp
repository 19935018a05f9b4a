#include "app/ObsluhyOkna.h"

#include "app/Konverzace.h"
#include "app/Modely.h"
#include "app/OProgramu.h"
#include "app/OknaPomucek.h"
#include "app/OknoKonverze.h"
#include "app/OknoNapovedy.h"
#include "app/UdalostiOkna.h"
#include "app/ui/Form1.h"
#include "board/ui/Hmatnik.h"
#include "playing/recording/CekajiciPrsty.h"
#include "playing/stepping/Automat.h"

namespace zvonika {

namespace {

/// A song is begun or opened. The window of a workbook that has just come up would take the keyboard along.
std::function<void()> zahajeni(const CastiProgramu& c, const std::function<void()>& zahaj) {
    return [c, zahaj] {
        zahaj();
        if (c.modely.pisen.otevrena()) c.okno.activateWindow();
    };
}

ObsluhyPrikazu prikazyPisne(const CastiProgramu& c) {
    const KonverzacePisne k = c.konverzace.pisen();
    return {
        {"cmdNovaSkladba", zahajeni(c, [k] { k.zivotPisne.cmdNovaSkladba(); })},
        {"cmdEdit", zahajeni(c, [k] { k.zivotPisne.cmdEdit(); })},
        {"cmdEndEdit", [k] { k.zivotPisne.cmdEndEdit(); }},
        {"cmdPrvni", [k] { k.navigace.cmdPrvni(); }},
        {"cmdPredchozi", [k] { k.navigace.cmdPredchozi(); }},
        {"cmdDalsi", [k] { k.navigace.cmdDalsi(); }},
        {"cmdPosledni", [k] { k.navigace.cmdPosledni(); }},
        {"cmdPredTah", [k] { k.navigace.cmdPredTah(); }},
        {"cmdPredTlak", [k] { k.navigace.cmdPredTlak(); }},
        {"cmdDalsiTah", [k] { k.navigace.cmdDalsiTah(); }},
        {"cmdDalsiTlak", [k] { k.navigace.cmdDalsiTlak(); }},
        {"cmdReadTah", [k] { k.navigace.cmdReadTah(); }},
        {"cmdReadTlak", [k] { k.navigace.cmdReadTlak(); }},
        {"cmdJakDal", [k] { k.navigace.cmdJakDal(); }},
        {"cmdJakDalZpet", [k] { k.navigace.cmdJakDalZpet(); }},
        {"cmdTimer", [c] { c.automat.cmdTimer(); }},
        {"mnuZpet", [c] { c.konverzace.vraceni().mnuZpet(); }},
        {"mnuZnovu", [c] { c.konverzace.vraceni().mnuZnovu(); }},
    };
}

void mnuVzitPrst(Modely& modely) {
    const std::vector<int> hmat = modely.diskant.oznacene();
    const QStringList prsty = modely.prstoklad.zaznamy(hmat);
    if (prsty.isEmpty()) return;
    modely.panel.upozorneni =
        QStringLiteral("Vzato zpět: %1. Tento prst se nezapíše.").arg(slovyPrst(prsty.constLast()));
    modely.prstoklad.odeberPosledni(hmat);
}

/// Where the player goes on: Space releases the first button of the grip, arrows lead to its neighbours. Who
/// is in another window stays there.
void jdiNaPrevzate(const CastiProgramu& c) {
    QWidget* prvni = nullptr;
    const auto zastav = [&](const char* pole, const std::vector<int>& oznacene) {
        if (oznacene.empty()) return;
        QWidget* prvek =
            c.okno.prvek(QStringLiteral("%1(%2)").arg(QLatin1String(pole)).arg(oznacene.front()));
        nastavZastavkuTab(prvek);
        if (!prvni) prvni = prvek;
    };
    zastav("lbl", c.modely.diskant.oznacene());
    zastav("cmdKlavesa", c.modely.diskant.oznacene());
    zastav("ImgBas", c.modely.basy.oznacene());
    if (prvni && c.okno.isActiveWindow()) prvni->setFocus(Qt::ShortcutFocusReason);
}

ObsluhyPrikazu prikazyZapisu(const CastiProgramu& c) {
    const KonverzaceZapisu k = c.konverzace.zapis();
    ObsluhyPrikazu obsluhy = {
        {"cmdStupnice", [c] { cmdStupnice(c.okno, c.konverzace.pomucky().volbaStupnice, c.modely.tonina); }},
        {"cmdTah", [k] { k.zapisHmatu.cmdTah(); }},
        {"cmdTlak", [k] { k.zapisHmatu.cmdTlak(); }},
        {"mnuVzitPrst", [c] { mnuVzitPrst(c.modely); }},
        {"cmdTahNoty", [k] { k.zapisHmatuZNot.cmdTahNoty(); }},
        {"cmdTlakNoty", [k] { k.zapisHmatuZNot.cmdTlakNoty(); }},
        {"mnuPrevzitHmat",
         [c, k] {
             if (k.prevzeti.mnuPrevzitHmat()) jdiNaPrevzate(c);
         }},
        {"mnuVlozitHmat", [k] { k.radky.mnuVlozitHmat(); }},
        {"mnuSmazatHmat", [k] { k.radky.mnuSmazatHmat(); }},
    };
    for (const PrikazUvolneni& radek : prikazyUvolneni())
        obsluhy.insert(radek.tlacitko, [k, tlacitko = radek.tlacitko] { k.uvolneni.proved(tlacitko); });
    return obsluhy;
}

ObsluhyPrikazu prikazyPomucek(const CastiProgramu& c) {
    const KonverzacePomucek k = c.konverzace.pomucky();
    return {
        {"cmdInterval", [k] { k.intervaly.cmdInterval(); }},
        {"cmdSpodInterval", [k] { k.intervaly.cmdSpodInterval(); }},
        {"cmdIntervalOdNejnizsiho", [k] { k.intervaly.cmdIntervalOdNejnizsiho(); }},
        {"mnu2Rady", [k] { k.volbyHmatniku.mnu2Rady(); }},
        {"mnuCislovat", [k] { k.volbyHmatniku.mnuCislovat(); }},
        {"mnuOtocitHmatnik", [k] { k.volbyHmatniku.mnuOtocitHmatnik(); }},
        {"mnuPrekrytRady", [c] { mnuPrekrytRady(c.okno, c.modely.diskant, c.prostredi); }},
        {"mnuNastavCestu", [c] { mnuNastavCestu(c.okno, c.modely.pisen, c.prostredi); }},
        {"mnuTabulka", [c] { mnuTabulka(c.okno, c.prostredi, c.modely.panel); }},
        {"mnuKonverze", [c] { mnuKonverze(c.okno, c.modely, c.konverzace.pisen().zivotPisne, c.prostredi); }},
        {"mnuhtm", [c] { c.napoveda.mnuhtm(c.okno); }},
        {"cmdOPrg", [c] { cmdOPrg(c.prostredi.dialogs); }},
        {"mnuMailAutorovi",
         [c] {
             if (!mnuMailAutorovi(c.prostredi.dialogs, c.prostredi.shell))
                 c.modely.panel.upozorneni = QStringLiteral("Nenašel se program, který by zprávu odeslal.");
         }},
    };
}

/// Those that are no event procedure like the others: no trap at the sound, and the end of the program, whose
/// window closes with nothing running.
ObsluhyPrikazu prikazyMimoUdalosti(const CastiProgramu& c) {
    ObsluhyPrikazu obsluhy = {{"mnuKonec", [c] {
                                   if (mnuKonec(c.prostredi.dialogs)) c.okno.close();
                               }}};
    for (int index = 0; index < 3; ++index)
        obsluhy.insert(QStringLiteral("cmdZvuk(%1)").arg(index), [c, index] {
            c.udalosti.provedBezZachyceni([c, index] { c.konverzace.pisen().zvuk.cmdZvuk(index); });
        });
    return obsluhy;
}

} // namespace

ObsluhyPrikazu obsluhyOkna(const CastiProgramu& casti) {
    ObsluhyPrikazu obsluhy = prikazyMimoUdalosti(casti);
    for (const ObsluhyPrikazu& skupina : {prikazyPisne(casti), prikazyZapisu(casti), prikazyPomucek(casti)})
        for (auto radek = skupina.cbegin(); radek != skupina.cend(); ++radek)
            obsluhy.insert(radek.key(), [&udalosti = casti.udalosti, procedura = radek.value()] {
                udalosti.proved(procedura);
            });
    return obsluhy;
}

} // namespace zvonika
