// bench_konverze [--tabulka=libreoffice]: how long a song takes into another key, from the click on "Provést"
// until the box says that it is done, with both windows on the screen and the note table read afresh for
// every tone.
#include "app/Program.h"
#include "bench/BeziciProgram.h"
#include "bench/Kvantily.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>

namespace zvonika::bench {
namespace {

constexpr int opakovani = 5;

/// Grips of seven tones.
CellBlock sedmizvuky(int hmatu) {
    static const char* tony[] = {"c1,", "e1,", "g1,", "h1,", "d2,", "fis2,", "a2,"};
    CellBlock blok;
    for (int radek = 0; radek < hmatu; ++radek) {
        QVector<CellValue> bunky(23);
        for (int i = 0; i < 7; ++i)
            bunky[1 + i] = QString::fromLatin1(tony[(radek + i) % 7]);
        bunky[8] = radek % 2 ? QStringLiteral("Tah") : QStringLiteral("Tlak");
        bunky[22] = QStringLiteral("C dur");
        blok.push_back(bunky);
    }
    return blok;
}

/// Does in the dialog and its box what the player does; the time in between is the conversion's.
class Hrac {
public:
    Hrac() {
        QObject::connect(&hlidka_, &QTimer::timeout, [this] { jednej(); });
        hlidka_.start(1);
    }

    double sekundy() const { return std::chrono::duration<double>(hotovo_ - klik_).count(); }

private:
    using Hodiny = std::chrono::steady_clock;

    void jednej() {
        QWidget* okno = QApplication::activeModalWidget();
        if (!okno || !okno->windowHandle() || !okno->windowHandle()->isExposed()) return;
        if (okno->objectName() != u"frmKonverze") {
            if (hotovo_ == Hodiny::time_point()) hotovo_ = Hodiny::now();
            QTest::keyClick(okno, Qt::Key_Return);
        } else if (klik_ == Hodiny::time_point()) {
            okno->findChild<QAbstractButton*>(QStringLiteral("optStupnice(1)"))->setChecked(true);
            klik_ = Hodiny::now();
            // Not from here: this timer is silent until its own handler has returned.
            auto* cmdGo = okno->findChild<QAbstractButton*>(QStringLiteral("cmdGo"));
            QTimer::singleShot(0, cmdGo, &QAbstractButton::click);
        }
    }

    QTimer hlidka_;
    Hodiny::time_point klik_, hotovo_;
};

double preved(Program& program) {
    const Hrac hrac;
    program.okno().findChild<QAction*>(QStringLiteral("mnuKonverze"))->trigger();
    if (!program.modely().pisen.aktualniPisen.endsWith(QStringLiteral(" G dur.xls")))
        throw std::runtime_error("nothing was converted");
    return hrac.sekundy();
}

void konverze(benchmark::State& stav, BeziciProgram& bezici) {
    static int poradi = 0;
    Program& program = bezici.program();
    const int hmatu = int(stav.range(0));
    std::vector<double> ms;
    for (auto _ : stav) {
        bezici.zalozPisen(QStringLiteral("Převáděná %1").arg(++poradi), 1);
        program.modely().pisen.excel().writeBlock(QStringLiteral("A1:W%1").arg(hmatu), sedmizvuky(hmatu));
        const double doba = preved(program);
        stav.SetIterationTime(doba);
        ms.push_back(doba * 1e3);
        if (program.modely().pisen.excel().value(QStringLiteral("W%1").arg(hmatu)) !=
            CellValue(QStringLiteral("G dur")))
            stav.SkipWithError("the last row was not converted");
        bezici.klikni(QStringLiteral("cmdEndEdit"));
    }
    zapisVzorky(stav, "total", ms);
    stav.counters["row_median_ms"] = kvantil(ms, 0.5) / hmatu;
}

void zmer(QApplication& aplikace) {
    BeziciProgram bezici(aplikace, nullptr, pozadovanaTabulka());
    auto* mereni = benchmark::RegisterBenchmark(
        "konverze", [&bezici](benchmark::State& stav) { konverze(stav, bezici); });
    for (const int hmatu : {125, 250, 500, 1000})
        mereni->Arg(hmatu);
    mereni->UseManualTime()->Iterations(opakovani)->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
}

} // namespace
} // namespace zvonika::bench

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    QApplication aplikace(argc, argv);
    try {
        zvonika::bench::zmer(aplikace);
        return 0;
    } catch (const std::exception& chyba) {
        std::fprintf(stderr, "bench_konverze: %s\n", chyba.what());
        return 1;
    }
}
