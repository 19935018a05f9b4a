#include "app/Program.h"
#include "app/Sestava.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication aplikace(argc, argv);
    zvonika::Sestava sestava(aplikace);
    sestava.program().Main();
    return QApplication::exec();
}
