#include "theory/OvereniNoty.h"

#include "platform/Contact.h"
#include "theory/NazvyTonu.h"
#include "theory/Tonina.h"
#include "theory/clsNoty.h"

namespace zvonika {

namespace {

const QString nerozpoznana = QStringLiteral("Nota nebyla rozpoznána a proto nemůže být zakreslena. Tato "
                                            "chyba by se v tomto programu vyskytnout neměla. "
                                            "Aby mohla být opravena, informujte prosím autora.");

const QString nabidkaOdrazky = QStringLiteral("Můžete použít odrážku pro dočasné zrušení půltónu, nebo "
                                              "zvolit jinou stupnici.\nPřejete si použít odrážku ?");

const QString nabidkaZapisu = QStringLiteral(
    "Pokud skladba pokračuje v jiné stupnici, stiskněte tlačítko Ne a pak zvolte jinou stupnici.\n"
    "Přejete-li si i přes upozornění zvolenou notu zapsat, stiskněte Ano a pak Vámi požadované tlačítko pro "
    "zápis.");

bool maPosuvku(const KreslenaNota& nota) {
    return nota.poloha.znamenko != Znamenko::Zadne;
}

} // namespace

OvereniNoty::OvereniNoty(Dialogs& dialogs, const clsNoty& noty, const Tonina& tonina, PrijemceNot& prijemce)
    : dialogs_(dialogs), noty_(noty), tonina_(tonina), prijemce_(prijemce) {}

void OvereniNoty::OverNotuVeStupnici(CisloTonu ton) {
    const auto [nazev, mimoStupnici] = nazevTonu(ton, tonina_.stupnice());
    const auto poloha = PolohaNoty::zTextu(noty_.UrciPolohuNoty(nazev));
    if (!poloha) {
        dialogs_.message({{}, nerozpoznana + kontakt, Icon::Critical});
        return;
    }
    prijemce_.popisKlavesu(ton, nazev);
    const KreslenaNota nota{ton, nazev, *poloha};
    if (mimoStupnici)
        vykonej(dialogs_.message(dotaz(nota)), nota);
    else
        prijemce_.zakresliNotu(nota);
}

Message OvereniNoty::dotaz(const KreslenaNota& nota) const {
    const QString uvod = QStringLiteral("Nota ") + nota.nazev.text() + QStringLiteral(" se ve stupnici ") +
                         tonina_.stupnice().text() + QStringLiteral(" nepoužívá.\n");
    return {QStringLiteral("Nota je mimo stupnici."),
            uvod + (maPosuvku(nota) ? nabidkaZapisu : nabidkaOdrazky), Icon::Question, Buttons::YesNoCancel};
}

void OvereniNoty::vykonej(Answer odpoved, KreslenaNota nota) {
    if (odpoved == Answer::Yes) {
        nota.sOdrazkou = !maPosuvku(nota);
        prijemce_.zakresliNotu(nota);
    } else if (odpoved == Answer::No) {
        zmenStupnici(nota.ton);
    } else {
        prijemce_.vratTlacitko(nota.ton);
    }
}

void OvereniNoty::zmenStupnici(CisloTonu ton) {
    const Key puvodni = tonina_.stupnice();
    prijemce_.otevriVyberStupnice();
    // The button is still marked, so its note is due in the new key.
    if (tonina_.stupnice() != puvodni) OverNotuVeStupnici(ton);
}

} // namespace zvonika
