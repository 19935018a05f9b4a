#include "app/OknoKonverze.h"

#include "app/Modely.h"
#include "app/ObsluhaUdalosti.h"
#include "app/Prostredi.h"
#include "conversion/Konverze.h"
#include "conversion/ui/FrmKonverze.h"
#include "playing/song/ZivotPisne.h"
#include "song/RadaPoChybe.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace zvonika {

namespace {

constexpr int obnovaMs = 33;

/// Lets the windows paint and answer while a run has the thread. Not at every call: each turn also brings the
/// journal to the disk, and nobody sees more than thirty pictures a second.
std::function<void()> zpracovaniZprav() {
    QElapsedTimer odMinule;
    odMinule.start();
    return [odMinule]() mutable {
        if (!odMinule.hasExpired(obnovaMs)) return;
        QCoreApplication::processEvents();
        odMinule.start();
    };
}

} // namespace

void mnuKonverze(QWidget& okno, Modely& modely, ZivotPisne& zivotPisne, const Prostredi& prostredi) {
    // The main window's events wait until the dialog is closed, so the dialog catches its failures itself.
    const auto ukazPricinu = [&modely](const QString& pricina) {
        modely.panel.vystraha = pricina;
        modely.panel.oznamZmenu();
    };
    ObsluhaUdalosti udalosti(prostredi.dialogs, prostredi.shell, [&](const RuntimeError& chyba) {
        ukazPricinu(radaPoChybe(modely.pisen, chyba));
    });
    const auto udalost = [&](const std::function<void()>& procedura) {
        if (!modely.panel.vystraha.isEmpty()) ukazPricinu({}); // of the one before
        udalosti.proved(procedura);
    };
    StavKonverze stav;
    Konverze konverze(modely.pisen, prostredi.dialogs, prostredi.drive, stav, zpracovaniZprav());
    konverze.Form_Load();
    FrmKonverze(konverze, stav, udalost, &okno).exec();
    udalosti.proved([&] { konverze.Form_Unload(); });
    okno.raise();
    okno.activateWindow(); // not the sheet's, which has come up too
    if (konverze.predanaKopie()) zivotPisne.prevezmiPisen();
    modely.panel.upozorneni = QStringList{konverze.veta(), modely.panel.upozorneni}.join(u' ').trimmed();
}

} // namespace zvonika
