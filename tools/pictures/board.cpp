// Draws the instrument in its states at several scales into the folder given as argument, to be looked at.

#include "tests/board/ui/Sestava.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>

#include <cstdio>

using namespace zvonika;

namespace {

void rozehraj(Sestava& s) {
    s.diskant.nastavNazvy(true, QStringLiteral("C dur"));
    for (const int n : {9, 12, 15, 16, 21}) {
        s.diskant.nastavZnacku(n, true);
        s.diskant.nastavTonKlavesy(n, s.diskant.popis(n));
    }
    s.diskant.nastavZnacku(29, true);
    for (const int n : {24, 25, 26, 29})
        s.diskant.ukazHmat(n, StavKnofliku::Tah);
    for (const int n : {32, 34, 35, 37})
        s.diskant.ukazHmat(n, StavKnofliku::Tlak);
    s.diskant.ukazInterval(40);
    s.diskant.nastavPopis(5, QStringLiteral("3\r\n") + s.diskant.popis(5));
    s.diskant.nastavPopis(25, QStringLiteral("1\r\n") + s.diskant.popis(25));
    s.diskant.nastavPopis(16, QStringLiteral("5\r\n4\r\n") + s.diskant.popis(16));
    s.diskant.nastavPopisPomocneho(34, QStringLiteral("2\r\n") + s.diskant.popisPomocneho(34));
    s.diskant.nastavTonKlavesy(22, QStringLiteral("cis2,"));
    s.diskant.nastavTonKlavesy(24, QStringLiteral("dis2,"));
    s.diskant.nastavTonKlavesy(29, QStringLiteral("gis2,"));
    s.diskant.nastavCislovani(true);
    for (const int n : {30, 50, 26, 54})
        s.basy.klik(n);
    for (const int n : {32, 52, 72, 12})
        s.basy.ukazHmat(n, StavBasu::Tah);
    for (const int n : {34, 54, 94, 114})
        s.basy.ukazHmat(n, StavBasu::Tlak);
}

void uloz(Sestava& s, const QString& soubor, double dpr = 1) {
    QPixmap obraz((QSizeF(s.scena.size()) * dpr).toSize());
    obraz.setDevicePixelRatio(dpr);
    obraz.fill(s.scena.palette().window().color());
    s.scena.render(&obraz);
    obraz.save(soubor);
}

void zmer() {
    QElapsedTimer hodiny;
    hodiny.start();
    Sestava s(0.87);
    const double vytvoreni = double(hodiny.nsecsElapsed()) / 1e6;
    hodiny.restart();
    s.scena.show();
    QCoreApplication::processEvents();
    s.scena.repaint();
    const double poprve = double(hodiny.nsecsElapsed()) / 1e6;
    rozehraj(s);
    QCoreApplication::processEvents();
    hodiny.restart();
    for (int i = 0; i < 50; ++i)
        s.scena.repaint();
    const double vse = double(hodiny.nsecsElapsed()) / 50e6;
    hodiny.restart();
    for (int i = 0; i < 50; ++i)
        s.prvek("lbl(17)")->repaint();
    std::printf("vytvoreni %.2f ms, poprve na obrazovce %.2f ms, prekresleni vseho %.2f ms, jednoho knofliku "
                "%.3f ms\n",
                vytvoreni, poprve, vse, double(hodiny.nsecsElapsed()) / 50e6);
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCommandLineParser zadano;
    zadano.setApplicationDescription(
        "Draws the instrument in its states at several scales, to be looked at.");
    zadano.addHelpOption();
    zadano.addPositionalArgument("folder", "Where the pictures go; made where it is missing.", "[FOLDER]");
    zadano.process(app);
    const QDir kam(zadano.positionalArguments().value(0, "."));
    kam.mkpath(QStringLiteral("."));
    zmer();
    zmer(); // once more with the fonts loaded
    for (const double meritko : {0.87, 1.0, 2.0}) {
        Sestava s(meritko);
        uloz(s, kam.filePath(QStringLiteral("volny-%1.png").arg(meritko)));
        rozehraj(s);
        uloz(s, kam.filePath(QStringLiteral("hmat-%1.png").arg(meritko)));
        s.diskant.nastavNazvy(false, {});
        s.diskant.nastavPopis(25, QStringLiteral("1\r\n"));
        s.diskant.nastavZabranu(1, true);
        s.diskant.nastavZabranu(2, true);
        s.scena.show();
        s.scena.activateWindow();
        s.prvek("lbl(20)")->setFocus();
        QCoreApplication::processEvents();
        uloz(s, kam.filePath(QStringLiteral("zabrany-%1.png").arg(meritko)));
    }
    Sestava s(0.87);
    rozehraj(s);
    uloz(s, kam.filePath(QStringLiteral("hmat-dpr2.png")), 2);
    return 0;
}
