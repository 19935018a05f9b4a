// bench_tempo: whether automatic stepping keeps time. Steps through a song at the fastest rate in real time
// and prints one line of JSON: how late each step came and how far the last ones have drifted from the first.
#include "app/Program.h"
#include "bench/BeziciProgram.h"
#include "bench/Kvantily.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QSet>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <vector>

namespace zvonika::bench {
namespace {

constexpr int kroku = 300;
constexpr int intervalMs = 100;

/// Notes when the grip counter changes, `kroku` times, and which of those grips it is painted with.
class Zaznam : public QObject {
public:
    explicit Zaznam(Program& program)
        : panel_(program.modely().panel), lblTon_(qobject_cast<QLabel*>(program.okno().prvek("lblTon"))),
          naposled_(panel_.lblTon) {
        lblTon_->installEventFilter(this);
        connect(&panel_, &SongPanel::zmeneno, this, &Zaznam::zapis);
    }
    bool uplny() const { return casy.size() == kroku; }

    std::vector<std::chrono::steady_clock::time_point> casy;
    QSet<QString> hmaty, malovane;
    QEventLoop smycka; ///< ends with the last grip

protected:
    bool eventFilter(QObject*, QEvent* udalost) override {
        if (udalost->type() == QEvent::Paint && hmaty.contains(lblTon_->text()))
            malovane.insert(lblTon_->text());
        return false;
    }

private:
    void zapis() {
        if (panel_.lblTon == naposled_ || uplny()) return;
        naposled_ = panel_.lblTon;
        hmaty.insert(naposled_);
        casy.push_back(std::chrono::steady_clock::now());
        if (uplny()) smycka.quit();
    }

    SongPanel& panel_;
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
    bezici.zalozPisen(QStringLiteral("Tempo"), kroku + 100); // on to be switched off in
    bezici.nastavTempo(5);
    Zaznam zaznam(bezici.program());
    const auto zacatek = std::chrono::steady_clock::now();
    bezici.program().proved(QStringLiteral("cmdTimer"));
    QTimer::singleShot(2 * kroku * intervalMs, &zaznam.smycka, &QEventLoop::quit);
    zaznam.smycka.exec(); // as the program runs: waiting in slices would make the ticks late
    if (!zaznam.uplny()) throw std::runtime_error("the song was not stepped through");
    bezici.domaluj();
    bezici.program().proved(QStringLiteral("cmdTimer"));

    const std::vector<double> ms = zpozdeni(zaznam, zacatek);
    // Drift is what adds up: the typical lateness of the last third against that of the first.
    const std::vector<double> prvni(ms.begin(), ms.begin() + kroku / 3);
    const std::vector<double> posledni(ms.end() - kroku / 3, ms.end());
    std::printf(
        "{\"steps\": %d, \"interval_ms\": %d, \"grips\": %d, \"painted\": %d, \"drift_ms\": %.3f, "
        "\"last_late_ms\": %.3f, \"late_median_ms\": %.3f, \"late_p99_ms\": %.3f, \"late_max_ms\": %.3f}\n",
        kroku, intervalMs, int(zaznam.hmaty.size()), int(zaznam.malovane.size()),
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
