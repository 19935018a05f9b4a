// bench_tempo: whether automatic stepping keeps time. Steps through a song at the fastest rate in real time
// and prints one line of JSON: how late each step came and how far the last ones have drifted from the first.
#include "app/Program.h"
#include "bench/BeziciProgram.h"
#include "bench/Kvantily.h"

#include <QApplication>
#include <QLabel>
#include <QSet>
#include <QTest>

#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <vector>

namespace zvonika::bench {
namespace {

constexpr int kroku = 300;
constexpr int intervalMs = 100;

/// Notes when the grip counter changes and which grips it is painted with.
class Zaznam : public QObject {
public:
    explicit Zaznam(Program& program) : lblTon_(qobject_cast<QLabel*>(program.okno().prvek("lblTon"))) {
        lblTon_->installEventFilter(this);
        connect(&program.modely().panel, &SongPanel::zmeneno, this, [this, &program] {
            if (program.modely().panel.lblTon == naposled_) return;
            naposled_ = program.modely().panel.lblTon;
            casy.push_back(std::chrono::steady_clock::now());
        });
    }
    std::vector<std::chrono::steady_clock::time_point> casy;
    QSet<QString> malovane;

protected:
    bool eventFilter(QObject*, QEvent* udalost) override {
        if (udalost->type() == QEvent::Paint) malovane.insert(lblTon_->text());
        return false;
    }

private:
    QLabel* lblTon_;
    QString naposled_;
};

/// Lateness of each step in ms, against a start that lies one interval before the first tick.
std::vector<double> zpozdeni(const Zaznam& zaznam, std::chrono::steady_clock::time_point zacatek) {
    std::vector<double> ms;
    for (const auto& cas : zaznam.casy) {
        const std::chrono::duration<double, std::milli> od = cas - zacatek;
        ms.push_back(od.count() - intervalMs * double(ms.size() + 1));
    }
    return ms;
}

void zmer(QApplication& aplikace) {
    BeziciProgram bezici(aplikace);
    bezici.zalozPisen(QStringLiteral("Tempo"), kroku + 1);
    bezici.nastavTempo(5);
    Zaznam zaznam(bezici.program());
    const auto zacatek = std::chrono::steady_clock::now();
    bezici.program().proved(QStringLiteral("cmdTimer"));
    const auto hotovo = [&] { return bezici.program().aktualniRadek() > kroku; };
    if (!QTest::qWaitFor(hotovo, 2 * kroku * intervalMs))
        throw std::runtime_error("the song was not stepped through");
    bezici.domaluj();
    bezici.program().proved(QStringLiteral("cmdTimer"));

    const std::vector<double> ms = zpozdeni(zaznam, zacatek);
    if (ms.size() != kroku) throw std::runtime_error("steps are missing");
    // Drift is what adds up: the typical lateness of the last third against that of the first.
    const std::vector<double> prvni(ms.begin(), ms.begin() + kroku / 3);
    const std::vector<double> posledni(ms.end() - kroku / 3, ms.end());
    std::printf(
        "{\"grips\": %d, \"interval_ms\": %d, \"row\": %d, \"painted\": %d, \"drift_ms\": %.3f, "
        "\"last_late_ms\": %.3f, \"late_median_ms\": %.3f, \"late_p99_ms\": %.3f, \"late_max_ms\": %.3f}\n",
        kroku, intervalMs, bezici.program().aktualniRadek(), int(zaznam.malovane.size()),
        kvantil(posledni, 0.5) - kvantil(prvni, 0.5), ms.back(), kvantil(ms, 0.5), kvantil(ms, 0.99),
        kvantil(ms, 1));
}

} // namespace
} // namespace zvonika::bench

int main(int argc, char* argv[]) {
    QApplication aplikace(argc, argv);
    try {
        zvonika::bench::zmer(aplikace);
        return 0;
    } catch (const std::exception& chyba) {
        std::fprintf(stderr, "bench_tempo: %s\n", chyba.what());
        return 1;
    }
}
