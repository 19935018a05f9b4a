// zvonika-prirucka FOLDER SONG [crash]: see --help.
#include "app/Program.h"
#include "app/Sestava.h"
#include "ukazka/ObrazkyPrirucky.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>
#include <exception>

namespace {

int vyfot(QApplication& aplikace, const QStringList& argumenty) {
    const QDir slozka(argumenty.at(0));
    zvonika::Sestava sestava(aplikace, {slozka.filePath("domov"), slozka.filePath("nastaveni")});
    zvonika::Program& program = sestava.program();
    program.Main();
    zvonika::ObrazkyPrirucky obrazky(program, slozka.path(), argumenty.at(1));
    if (argumenty.value(2) == u"crash") obrazky.spadni();
    obrazky.vyfot();
    program.okno().close();
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication aplikace(argc, argv);
    QCommandLineParser zadano;
    zadano.setApplicationDescription("Takes the pictures of the manual.");
    zadano.addHelpOption();
    zadano.addPositionalArgument("folder", "Holds \"domov\" with the song in its working folder.", "FOLDER");
    zadano.addPositionalArgument("song", "Name of the song.", "SONG");
    zadano.addPositionalArgument(
        "crash", "Ends in the middle of recording: the picture of a recovery needs it.", "[crash]");
    zadano.process(aplikace);
    if (zadano.positionalArguments().size() < 2) zadano.showHelp(2);
    try {
        return vyfot(aplikace, zadano.positionalArguments());
    } catch (const std::exception& chyba) {
        std::fprintf(stderr, "The pictures could not be taken: %s\n", chyba.what());
        return 1;
    }
}
