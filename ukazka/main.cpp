// zvonika-ukazka [--tabulka libreoffice] FOLDER: plays the demonstration and leaves its song and pictures in
// FOLDER. In LibreOffice Calc it needs a display of its own with a window manager, `xdotool` and `setxkbmap`.
#include "app/Program.h"
#include "app/Sestava.h"
#include "app/VolbaTabulky.h"
#include "platform/IniSettingsStore.h"
#include "ukazka/Ukazka.h"

#include <QApplication>
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
    QApplication aplikace(argc, argv);
    QStringList zadano = QCoreApplication::arguments().mid(1);
    const bool calc = zadano.value(0) == u"--tabulka" && zadano.value(1) == u"libreoffice";
    if (calc) zadano.remove(0, 2);
    QDir slozka(QDir(zadano.value(0, QStringLiteral("ukazka"))).absolutePath());
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
