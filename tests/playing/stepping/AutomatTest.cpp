// Automatic stepping against a clock that is turned by hand.
#include "playing/stepping/Automat.h"

#include "tests/playing/SongFixture.h"
#include "tests/support/RucniHodiny.h"

namespace zvonika::testing {

namespace {

using Ms = RucniHodiny::Ms;

class AutomatTest : public SongFixture {
protected:
    AutomatTest() {
        navigace.nastavZastaveniCasovace([this] { automat.zastav(); });
    }

    /// Opens a song and switches stepping on at this position of the slider.
    void spust(int pozice, int hmatu) {
        otevriPolku(hmatu);
        automat.Slider1Change(pozice);
        automat.cmdTimer();
        zacatek = hodiny.now();
    }
    bool krok() {
        kroky.push_back(std::chrono::duration_cast<Ms>(hodiny.now() - zacatek).count());
        hodiny.prodleva(trvaniKroku);
        if (priKroku) priKroku();
        navigace.cmdJakDal();
        return true;
    }

    RucniHodiny hodiny;
    Timer1 timer1;
    bool volno = true;
    Ms trvaniKroku{0};
    int malovano = 0;
    WakeUpClock::Time zacatek{};
    QVector<qint64> kroky; ///< ms after the start at which each step was taken
    std::function<void()> priKroku;
    Automat automat{prikazy,
                    timer1,
                    hodiny,
                    {[this] { return volno; }, [this] { ++malovano; }, [this] { return krok(); }}};
};

} // namespace

TEST_F(AutomatTest, IntervalsOfTheSlider) {
    const int cekane[] = {6000, 5200, 4400, 3600, 2800, 2000, 1620, 1240, 860, 480, 100};
    EXPECT_EQ(timer1.interval(), Ms(2000));
    for (int p = -5; p <= 5; ++p)
        EXPECT_EQ(intervalTempa(p), Ms(cekane[p + 5])) << p;
    EXPECT_EQ(intervalTempa(9), Ms(100));
}

TEST_F(AutomatTest, ThreeHundredGripsDoNotDriftHoweverUnevenTheSteps) {
    spust(5, 301);
    // Every tick is noticed a little late, every seventh step takes longer than the tick itself.
    for (int n = 0; kroky.size() < 300 && n < 10000; ++n) {
        trvaniKroku = Ms(kroky.size() % 7 == 6 ? 130 : 20);
        hodiny.prodleva(Ms(3));
        hodiny.obratka();
    }
    ASSERT_EQ(kroky.size(), 300);
    EXPECT_EQ(excel->activeRow(), 301) << "a grip was left out";
    EXPECT_EQ(malovano, 300) << "each grip is painted before the next";
    for (qsizetype i = 0; i < kroky.size(); ++i) {
        const qint64 zpozdeni = kroky[i] - 100 * (i + 1);
        EXPECT_GE(zpozdeni, 0) << i;
        EXPECT_LE(zpozdeni, 130 + 2 * 3 - 100 + 3) << i;
    }
}

TEST_F(AutomatTest, ANewRateCountsFromTheNextTick) {
    spust(0, 30);
    hodiny.uplyn(Ms(1500));
    automat.Slider1Change(5);
    EXPECT_EQ(timer1.interval(), Ms(100));
    hodiny.uplyn(Ms(700));
    automat.Slider1Change(-5);
    hodiny.uplyn(Ms(6100));
    EXPECT_EQ(kroky, QVector<qint64>({2000, 2100, 2200, 2300, 8300}));
}

TEST_F(AutomatTest, ARushAfterALongStandstillIsSpared) {
    spust(5, 50);
    hodiny.prodleva(Ms(5000)); // the program was stopped
    while (hodiny.obratka()) {
    }
    EXPECT_EQ(kroky, QVector<qint64>({5000}));
    hodiny.uplyn(Ms(200));
    EXPECT_EQ(kroky, QVector<qint64>({5000, 5100, 5200}));
}

TEST_F(AutomatTest, ATickIntoABoxIsARest) {
    spust(5, 30);
    hodiny.uplyn(Ms(150));
    priKroku = [this] { // the step shows a box, whose event loop goes on
        volno = false;
        hodiny.uplyn(Ms(450));
        volno = true;
        priKroku = nullptr;
    };
    hodiny.uplyn(Ms(700));
    EXPECT_EQ(kroky, QVector<qint64>({100, 200, 700, 800}));
}

TEST_F(AutomatTest, AnActInTheSheetIsARestUntilItIsLeftAlone) {
    spust(5, 30);
    hodiny.uplyn(Ms(150));
    automat.odpocin(); // a click into a cell
    hodiny.uplyn(Ms(1500));
    automat.odpocin(); // and a syllable
    hodiny.uplyn(Ms(2200));
    EXPECT_EQ(kroky, QVector<qint64>({100, 3700, 3800}));
}

TEST_F(AutomatTest, TheEndOfTheGripsStopsIt) {
    spust(5, 3);
    hodiny.uplyn(Ms(250));
    EXPECT_EQ(excel->activeRow(), 3);
    dialogs.expect("Neprovedeno.", "chybí informace o směru tahu měchu");
    bool zastavenoPredHlasenim = false;
    QObject::connect(&timer1, &Timer1::zmeneno, [&] { zastavenoPredHlasenim = !dialogs.done(); });
    hodiny.uplyn(Ms(5000)); // the song is over: one step beyond it, one box
    EXPECT_TRUE(dialogs.done());
    EXPECT_TRUE(zastavenoPredHlasenim);
    EXPECT_FALSE(timer1.zapnuty());
    EXPECT_EQ(excel->activeRow(), 4);
}

} // namespace zvonika::testing
