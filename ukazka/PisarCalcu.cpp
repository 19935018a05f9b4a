#include "ukazka/PisarCalcu.h"

#include "app/Program.h"

#include <QProcess>
#include <QTest>

#include <stdexcept>

namespace zvonika {

namespace {

constexpr int trpelivostCalcu = 60000; // ms

QString spust(const QString& prikaz, const QStringList& argumenty) {
    QProcess proces;
    proces.start(prikaz, argumenty);
    if (!proces.waitForFinished(trpelivostCalcu) || proces.exitCode() != 0)
        throw std::runtime_error("nejde spustit: " + prikaz.toStdString());
    return QString::fromUtf8(proces.readAllStandardOutput()).trimmed();
}

bool calcMaKlavesnici() {
    return spust("xdotool", {"getactivewindow", "getwindowname"}).contains("Calc");
}

} // namespace

void pisDoCalcu(Program& program, const QStringList& texty) {
    // Without a layout that has the Czech letters they would be typed by changing the keyboard under way.
    spust("setxkbmap", {"cz"});
    QTest::keyClick(&program.okno(), Qt::Key_F6);
    if (!QTest::qWaitFor(calcMaKlavesnici, trpelivostCalcu))
        throw std::runtime_error("Calc nedostal klávesnici");
    spust("xdotool", {"key", "Left"}); // from the grip's column B to the syllables in A
    SpreadsheetApplication& calc = program.modely().pisen.excel();
    const int prvni = calc.activeRow();
    for (const QString& text : texty) {
        spust("xdotool", {"type", text});
        spust("xdotool", {"key", "Return"});
    }
    const QString posledni = QStringLiteral("A%1").arg(prvni + texty.size() - 1);
    if (!QTest::qWaitFor([&] { return cellText(calc.value(posledni)) == texty.last(); }, trpelivostCalcu))
        throw std::runtime_error("slabiky nejsou v tabulce");
}

} // namespace zvonika
