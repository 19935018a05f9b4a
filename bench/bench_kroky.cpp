// bench_kroky [--tabulka=libreoffice]: what the player waits for, from the click to the painted frames of
// both windows.
#include "app/Program.h"
#include "bench/BeziciProgram.h"
#include "bench/Kvantily.h"

#include <QApplication>
#include <QTest>

#include <cstdio>
#include <exception>

namespace zvonika::bench {
namespace {

constexpr int kroku = 500;
constexpr int zapisu = 200;
constexpr int krokuHrace = 60;
constexpr int tempoHraceMs = 250;
constexpr int otevreni = 30;

/// Collects the times of one benchmark and hands them over at its end.
class Vzorky {
public:
    explicit Vzorky(benchmark::State& stav) : stav_(stav) {}
    ~Vzorky() {
        for (const Sloupec& sloupec : sloupce)
            zapisVzorky(stav_, sloupec.jmeno, hodnoty_[&sloupec - sloupce]);
        stav_.counters["paints_main"] = hlavni_ / double(stav_.iterations());
        stav_.counters["paints_sheet"] = tabulka_ / double(stav_.iterations());
    }
    Vzorky(const Vzorky&) = delete;
    Vzorky& operator=(const Vzorky&) = delete;

    void pridej(const CasAkce& cas) {
        stav_.SetIterationTime(cas.celkem / 1e3);
        for (const Sloupec& sloupec : sloupce)
            hodnoty_[&sloupec - sloupce].push_back(cas.*sloupec.pole);
        hlavni_ += cas.malbyHlavnihoOkna;
        tabulka_ += cas.malbyTabulky;
    }

private:
    struct Sloupec {
        const char* jmeno;
        double CasAkce::*pole;
    };
    static constexpr Sloupec sloupce[] = {{"total", &CasAkce::celkem},
                                          {"logic", &CasAkce::logika},
                                          {"paint", &CasAkce::obraz},
                                          {"display", &CasAkce::displej},
                                          {"cpu", &CasAkce::procesor}};

    benchmark::State& stav_;
    std::vector<double> hodnoty_[std::size(sloupce)];
    double hlavni_ = 0;
    double tabulka_ = 0;
};

/// Names a song that no other benchmark of this run has used.
QString dalsiNazev() {
    static int poradi = 0;
    return QStringLiteral("Měřená %1").arg(++poradi);
}

/// `prodleva`: ms from one click to the next, in which the player plays; what was read ahead is old by then,
/// and both programs have gone to sleep.
void krok(benchmark::State& stav, BeziciProgram& program, const QString& prikaz, int prodleva = 0) {
    const int hmatu = int(stav.range(0));
    program.zalozPisen(dalsiNazev(), hmatu);
    {
        Vzorky vzorky(stav);
        int radek = hmatu;
        for (auto _ : stav) {
            if (radek++ == hmatu) {
                program.klikni(QStringLiteral("cmdPrvni"));
                radek = 2;
            }
            if (prodleva > 0) QTest::qWait(prodleva);
            vzorky.pridej(program.klikni(prikaz));
        }
    }
    program.klikni(QStringLiteral("cmdEndEdit"));
}

/// Steps of the timer at its fastest rate.
void automat(benchmark::State& stav, BeziciProgram& program) {
    const int hmatu = int(stav.range(0));
    program.zalozPisen(dalsiNazev(), hmatu);
    program.nastavTempo(5);
    program.klikni(QStringLiteral("cmdTimer"));
    {
        Vzorky vzorky(stav);
        int radek = 1;
        for (auto _ : stav) {
            if (radek++ == hmatu) {
                program.klikni(QStringLiteral("cmdPrvni"));
                radek = 2;
            }
            vzorky.pridej(program.tik());
        }
        if (program.program().aktualniRadek() != radek) stav.SkipWithError("steps are missing");
    }
    program.klikni(QStringLiteral("cmdTimer"));
    program.klikni(QStringLiteral("cmdEndEdit"));
}

/// Appends grips of three tones and a bass to the end of the song.
void zapis(benchmark::State& stav, BeziciProgram& program) {
    const int hmatu = int(stav.range(0));
    program.zalozPisen(dalsiNazev(), hmatu);
    program.naRadek(hmatu);
    program.klikni(QStringLiteral("cmdDalsi"));
    {
        Vzorky vzorky(stav);
        for (auto _ : stav) {
            for (const char* prvek : {"lbl(9)", "lbl(13)", "lbl(16)", "ImgBas(30)"})
                program.klikni(QString::fromLatin1(prvek));
            vzorky.pridej(program.klikni(QStringLiteral("cmdTah")));
            program.klikni(QStringLiteral("cmdUvolKnofl"));
        }
    }
    if (program.program().aktualniRadek() != hmatu + 1 + int(stav.iterations()))
        stav.SkipWithError("grips are missing");
    program.klikni(QStringLiteral("cmdEndEdit"));
}

/// Takes recorded grips back one by one.
void zpet(benchmark::State& stav, BeziciProgram& program) {
    const int hmatu = int(stav.range(0));
    program.zalozPisen(dalsiNazev(), hmatu);
    program.naRadek(hmatu);
    program.klikni(QStringLiteral("cmdDalsi"));
    for (const char* prvek : {"lbl(9)", "lbl(13)", "lbl(16)", "ImgBas(30)"})
        program.klikni(QString::fromLatin1(prvek));
    for (int i = 0; i < zapisu; ++i)
        program.klikni(QStringLiteral("cmdTah"));
    {
        Vzorky vzorky(stav);
        for (auto _ : stav)
            vzorky.pridej(program.proved(QStringLiteral("mnuZpet")));
    }
    if (program.program().aktualniRadek() != hmatu + 1) stav.SkipWithError("grips are left");
    program.klikni(QStringLiteral("cmdEndEdit"));
}

void otevreniPisne(benchmark::State& stav, BeziciProgram& program) {
    const QString nazev = dalsiNazev();
    program.zalozPisen(nazev, int(stav.range(0)));
    program.klikni(QStringLiteral("cmdEndEdit"));
    Vzorky vzorky(stav);
    for (auto _ : stav) {
        vzorky.pridej(program.otevri(nazev));
        program.klikni(QStringLiteral("cmdEndEdit"));
    }
}

/// Ends a song with one grip recorded since it was opened: it is saved and closed.
void konecPisne(benchmark::State& stav, BeziciProgram& program) {
    const QString nazev = dalsiNazev();
    program.zalozPisen(nazev, int(stav.range(0)));
    program.klikni(QStringLiteral("cmdEndEdit"));
    Vzorky vzorky(stav);
    for (auto _ : stav) {
        program.otevri(nazev);
        program.klikni(QStringLiteral("lbl(9)"));
        program.klikni(QStringLiteral("cmdTah"));
        program.klikni(QStringLiteral("cmdUvolKnofl"));
        vzorky.pridej(program.klikni(QStringLiteral("cmdEndEdit")));
    }
}

void zaregistruj(const char* jmeno, int opakovani, const std::function<void(benchmark::State&)>& mereni) {
    benchmark::RegisterBenchmark(jmeno, mereni)
        ->Arg(30)
        ->Arg(500)
        ->UseManualTime()
        ->Iterations(opakovani)
        ->Unit(benchmark::kMillisecond);
}

void zaregistrujVse(BeziciProgram& program) {
    for (const char* prikaz : {"cmdDalsi", "cmdJakDal"})
        zaregistruj(prikaz, kroku, [&program, prikaz](benchmark::State& stav) {
            krok(stav, program, QString::fromLatin1(prikaz));
        });
    zaregistruj("cmdJakDal 250", krokuHrace, [&program](benchmark::State& stav) {
        krok(stav, program, QStringLiteral("cmdJakDal"), tempoHraceMs);
    });
    zaregistruj("Timer1", kroku, [&program](benchmark::State& stav) { automat(stav, program); });
    zaregistruj("cmdTah", zapisu, [&program](benchmark::State& stav) { zapis(stav, program); });
    zaregistruj("mnuZpet", zapisu, [&program](benchmark::State& stav) { zpet(stav, program); });
    zaregistruj("cmdEdit", otevreni, [&program](benchmark::State& stav) { otevreniPisne(stav, program); });
    zaregistruj("cmdEndEdit", otevreni, [&program](benchmark::State& stav) { konecPisne(stav, program); });
}

void zmer(QApplication& aplikace) {
    testing::RucniHodiny hodiny;
    BeziciProgram program(aplikace, &hodiny, pozadovanaTabulka());
    const QWidget& okno = program.program().okno();
    benchmark::AddCustomContext("platform", QGuiApplication::platformName().toStdString());
    benchmark::AddCustomContext("main_window",
                                std::to_string(okno.width()) + "x" + std::to_string(okno.height()));
    zaregistrujVse(program);
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
        std::fprintf(stderr, "bench_kroky: %s\n", chyba.what());
        return 1;
    }
}
