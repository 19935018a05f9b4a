// start_probe FOLDER: starts the program as its own main does, on a home folder of its own, and prints how
// long it took until the main window was painted.
#include "app/Program.h"
#include "app/Sestava.h"
#include "bench/StartClock.h"

#include <QApplication>
#include <QDir>

int main(int argc, char* argv[]) {
    zvonika::bench::StartClock clock;
    clock.mark("main");
    QApplication aplikace(argc, argv);
    clock.mark("application");
    const QDir slozka(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath());
    zvonika::Sestava sestava(aplikace, {slozka.filePath("domov"), slozka.filePath("nastaveni")});
    clock.mark("built");
    clock.watch(sestava.program().okno());
    sestava.program().Main();
    clock.mark("shown");
    return QApplication::exec();
}
