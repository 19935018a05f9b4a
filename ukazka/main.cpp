// zvonika-ukazka [--tabulka libreoffice] FOLDER: see --help. In LibreOffice Calc it needs a display of its
// own with a window manager, `xdotool` and `setxkbmap`.
#include "app/Program.h"
#include "app/Sestava.h"
#include "app/VolbaTabulky.h"
#include "platform/IniSettingsStore.h"
#include "ukazka/Ukazka.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>

namespace {

int prehraj(QApplication& aplikace, const QDir& slozka, zvonika::Tabulka tabulka) {
    zvonika::IniSettingsStore nastaveni(slozka.filePath("nastaveni/Tonavox12.ini"));
    zvonika::VolbaTabulky(nastaveni).zvol(tabulka);
    zvonika::Sestava sestava(aplikace, {slozka.filePath("domov"), slozka.filePath("nastaveni")});
    zvonika::Program& program = sestava.program();
    program.Main();
    zvonika::Ukazka ukazka(program, slozka.path(), tabulka);
    ukazka.prehraj();
    program.okno().close();
    std::printf("Pictures: %s (%d)\nSong: %s\n", qPrintable(slozka.path()), ukazka.obrazku(),
                qPrintable(ukazka.souborPisne()));
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // the player could not press their buttons
    QApplication aplikace(argc, argv);
    QCommandLineParser zadano;
    zadano.setApplicationDescription("Plays the demonstration and leaves its song and pictures in FOLDER.");
    zadano.addHelpOption();
    zadano.addOption(
        {"tabulka", "The spreadsheet to play in: vestavena or libreoffice.", "spreadsheet", "vestavena"});
    zadano.addPositionalArgument("folder", "Made where it is missing; \"ukazka\" where none is given.",
                                 "[FOLDER]");
    zadano.process(aplikace);
    const bool calc = zadano.value("tabulka") == u"libreoffice";
    const QDir slozka(QDir(zadano.positionalArguments().value(0, QStringLiteral("ukazka"))).absolutePath());
    // Only what an earlier demonstration left: the folder may hold other things too.
    for (const char* pisen : {"Kočka leze dírou", "Kočka leze dírou G dur", "Kočka leze dírou F dur"})
        QFile::remove(slozka.filePath(QStringLiteral("domov/Dokumenty/Heligonka/Zvonika/%1.xls").arg(pisen)));
    QFile::remove(slozka.filePath("nastaveni/Tonavox12.ini"));
    if (!slozka.mkpath("domov") || !slozka.mkpath("nastaveni")) {
        std::fprintf(stderr, "The folder cannot be made: %s\n", qPrintable(slozka.path()));
        return 1;
    }
    try {
        return prehraj(aplikace, slozka, calc ? zvonika::Tabulka::LibreOffice : zvonika::Tabulka::Vestavena);
    } catch (const std::exception& chyba) {
        std::fprintf(stderr, "The demonstration stopped: %s\n", chyba.what());
        return 1;
    }
}
