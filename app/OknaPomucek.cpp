#include "app/OknaPomucek.h"

#include "aids/NastaveniRad.h"
#include "aids/ZmenaCesty.h"
#include "aids/ui/FrmNastaveni.h"
#include "aids/ui/FrmZmenaCesty.h"
#include "app/Prostredi.h"

#include <QScopeGuard>

namespace zvonika {

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

} // namespace zvonika
