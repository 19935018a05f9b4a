// empty_window: the least that any program with a window of this toolkit costs at its start.
#include "bench/StartClock.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    zvonika::bench::StartClock clock;
    clock.mark("main");
    QApplication application(argc, argv);
    clock.mark("application");
    QMainWindow window;
    window.resize(956, 705);
    clock.watch(window);
    window.show();
    clock.mark("shown");
    return QApplication::exec();
}
