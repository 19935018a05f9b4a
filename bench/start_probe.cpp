// start_probe [libreoffice] FOLDER: starts the program as its own main does, on a home folder of its own, and
// prints how long it took until the main window was painted.
#include "app/Program.h"
#include "app/Sestava.h"
#include "app/VolbaTabulky.h"
#include "bench/StartClock.h"
#include "platform/IniSettingsStore.h"

#include <QApplication>
#include <QDir>

#include <cstring>

int main(int argc, char* argv[]) {
    zvonika::bench::StartClock clock;
    clock.mark("main");
    QApplication aplikace(argc, argv);
    clock.mark("application");
    const bool calc = argc > 1 && std::strcmp(argv[1], "libreoffice") == 0;
    const int misto = calc ? 2 : 1;
    QDir slozka(argc > misto ? QString::fromLocal8Bit(argv[misto]) : QDir::tempPath());
    if (calc) {
        zvonika::IniSettingsStore nastaveni(slozka.filePath("calc/nastaveni/Tonavox12.ini"));
        zvonika::VolbaTabulky(nastaveni).zvol(zvonika::Tabulka::LibreOffice);
        slozka.cd("calc");
    }
    zvonika::Sestava sestava(aplikace, {slozka.filePath("domov"), slozka.filePath("nastaveni")});
    clock.mark("built");
    clock.watch(sestava.program().okno());
    sestava.program().Main();
    clock.mark("shown");
    return QApplication::exec();
}
