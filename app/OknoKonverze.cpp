#include "app/OknoKonverze.h"

#include "app/Modely.h"
#include "app/ObsluhaUdalosti.h"
#include "app/Prostredi.h"
#include "conversion/Konverze.h"
#include "conversion/ui/FrmKonverze.h"
#include "song/ZivotPisne.h"

#include <QCoreApplication>

namespace zvonika {

void mnuKonverze(QWidget& okno, Modely& modely, ZivotPisne& zivotPisne, const Prostredi& prostredi) {
    // The main window's events wait until the dialog is closed, so the dialog catches its failures itself.
    ObsluhaUdalosti udalosti(prostredi.dialogs, prostredi.shell);
    const auto udalost = [&](const std::function<void()>& procedura) { udalosti.proved(procedura); };
    StavKonverze stav;
    Konverze konverze(modely.pisen, prostredi.dialogs, prostredi.drive, stav,
                      [] { QCoreApplication::processEvents(); });
    konverze.Form_Load();
    FrmKonverze(konverze, stav, udalost, &okno).exec();
    udalost([&] { konverze.Form_Unload(); });
    okno.raise();
    okno.activateWindow(); // not the sheet's, which has come up too
    if (konverze.predanaKopie()) zivotPisne.prevezmiPisen();
    modely.panel.upozorneni = QStringList{konverze.veta(), modely.panel.upozorneni}.join(u' ').trimmed();
}

} // namespace zvonika
