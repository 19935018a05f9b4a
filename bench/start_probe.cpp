// start_probe [--tabulka libreoffice] FOLDER: see --help.
#include "app/Program.h"
#include "app/Sestava.h"
#include "app/VolbaTabulky.h"
#include "bench/StartClock.h"
#include "platform/IniSettingsStore.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

int main(int argc, char* argv[]) {
    zvonika::bench::StartClock clock;
    clock.mark("main");
    QApplication aplikace(argc, argv);
    clock.mark("application");
    QCommandLineParser zadano;
    zadano.setApplicationDescription(
        "Starts the program as its own main does, on a home folder of its own, and prints "
        "how long it took until the main window was painted.");
    zadano.addHelpOption();
    zadano.addOption(
        {"tabulka", "The spreadsheet to start with: vestavena or libreoffice.", "spreadsheet", "vestavena"});
    zadano.addPositionalArgument("folder", "Holds the home folder and the settings.", "[FOLDER]");
    zadano.process(aplikace);
    const bool calc = zadano.value("tabulka") == u"libreoffice";
    QDir slozka(zadano.positionalArguments().value(0, QDir::tempPath()));
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
