// zvonika-prirucka FOLDER SONG [crash]: takes the pictures of the manual. FOLDER holds "domov" with SONG in
// its working folder; with "crash" the run ends in the middle of recording, which is what the picture of a
// recovery needs.
#include "app/Program.h"
#include "app/Sestava.h"
#include "ukazka/ObrazkyPrirucky.h"

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <exception>

namespace {

int vyfot(QApplication& aplikace, const QStringList& argumenty) {
    const QDir slozka(argumenty.at(1));
    zvonika::Sestava sestava(aplikace, {slozka.filePath("domov"), slozka.filePath("nastaveni")});
    zvonika::Program& program = sestava.program();
    program.Main();
    zvonika::ObrazkyPrirucky obrazky(program, slozka.path(), argumenty.at(2));
    if (argumenty.size() > 3) obrazky.spadni();
    obrazky.vyfot();
    program.okno().close();
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication aplikace(argc, argv);
    try {
        return vyfot(aplikace, QApplication::arguments());
    } catch (const std::exception& chyba) {
        std::fprintf(stderr, "The pictures could not be taken: %s\n", chyba.what());
        return 1;
    }
}
