#include "app/OknaPomucek.h"

#include "aids/NastaveniRad.h"
#include "aids/ZmenaCesty.h"
#include "aids/ui/FrmNastaveni.h"
#include "aids/ui/FrmZmenaCesty.h"
#include "app/Prostredi.h"
#include "app/ui/FrmTabulka.h"
#include "song/SongPanel.h"
#include "theory/ui/FrmStupnice.h"

#include <QScopeGuard>

namespace zvonika {

void cmdStupnice(QWidget& okno, VolbaStupnice& volba, const Tonina& tonina) {
    FrmStupnice(volba, tonina, &okno).exec();
}

void mnuPrekrytRady(QWidget& okno, TrebleBoard& diskant, const Prostredi& prostredi) {
    NastaveniRad nastaveni(prostredi.nastaveni, diskant, prostredi.dialogs);
    const auto navrat = qScopeGuard([&okno] {
        okno.show();
        okno.raise();
        okno.activateWindow();
    });
    okno.hide();
    FrmNastaveni(nastaveni, &okno).exec();
}

void mnuNastavCestu(QWidget& okno, Pisen& pisen, const Prostredi& prostredi) {
    ZmenaCesty zmena(pisen, prostredi.drive, prostredi.dialogs);
    FrmZmenaCesty(zmena, &okno).exec();
}

void mnuTabulka(QWidget& okno, const Prostredi& prostredi, SongPanel& panel) {
    VolbaTabulky volba(prostredi.nastaveni);
    const Tabulka predtim = volba.zvolena();
    FrmTabulka(volba, prostredi.tabulky.nabidka(), &okno).exec();
    if (volba.zvolena() != predtim)
        panel.upozorneni = QStringLiteral("Jiný tabulkový program bude použit při příštím spuštění Zvoniky.");
}

} // namespace zvonika
