// The main window's side of Program: what stands in the scene, and how window and models hear of each other.
#include "app/PoradiFokusu.h"
#include "app/Program.h"
#include "board/ui/Hmatnik.h"
#include "song/ui/PanelTextu.h"
#include "song/ui/PasWidget.h"
#include "theory/ui/FrmStupnice.h"
#include "theory/ui/ZapisovaciOsnova.h"
#include "theory/ui/ZobrazovaciOsnovaWidget.h"

#include <QAbstractButton>
#include <QShortcut>

#include <algorithm>

namespace zvonika {

void Program::postavNastroje()
{
    QWidget* scena = okno_->centralWidget();
    const Umisti umisti = [this](QWidget* prvek, const QRect& twips) { okno_->umisti(prvek, twips); };
    Tonavox12 jmena;
    const ObsluhaDiskantu diskant = {
        [this](int n) { provedUdalost([this, n] { konverzace_.klikDiskantu.klik(n); }); },
        [this](int n, bool pomocny) {
            provedUdalost([this, n, pomocny] {
                if (pomocny)
                    konverzace_.prstoklad.dvojklikLblSynchro(n);
                else
                    konverzace_.prstoklad.dvojklikLbl(n);
            });
        },
        [jmena](int n) mutable {
            jmena.DejTon(CisloTonu(n));
            return jmena.nazevTonu().text().chopped(1); // without the comma that ends every name
        }};
    vytvorDiskant(scena, modely_.diskant, diskant, umisti);
    vytvorKlaviaturu(scena, modely_.diskant, diskant, umisti);
    vytvorBasy(scena, modely_.basy,
               {[this](int bas) { provedUdalost([this, bas] { modely_.basy.klik(bas); }); },
                [this](int bas) { return modely_.tabulkaBasu.nazev(bas); }},
               umisti);
}

} // namespace zvonika
