#include "playing/undo/Vraceni.h"

#include "playing/stepping/Navigace.h"
#include "tests/playing/recording/ZapisovaniFixture.h"
#include "tests/support/NahodnyHrac.h"
#include "tests/support/RukaVestavene.h"

namespace zvonika {
namespace {

using testing::s;

class VraceniTest : public testing::Zapisovani {
protected:
    VraceniTest() { pisen.plneJmeno = QStringLiteral("C:\\Dokumenty\\Polka.xls"); }

    /// The whole active sheet as far as songs go.
    CellBlock bunkyListu() const { return excel->app().readBlock(QStringLiteral("A1:X30")); }
    void zapisHmat(const char* bunka, const std::vector<int>& tony, bool tlak = false) {
        excel->app().selectRange(QString::fromUtf8(bunka));
        diskant.uvolniDiskant();
        oznacTony(tony);
        tlak ? zapis.cmdTlak() : zapis.cmdTah();
    }
    void hracNapise(const char* bunka, const char* text) {
        const CellPosition kde = parseAddress(QString::fromUtf8(bunka)).value().first;
        const CellValue predtim = excel->cell(QString::fromUtf8(bunka));
        excel->put(bunka, text);
        vraceni.done(
            {QStringLiteral("Psaní"),
             {CellTurned{excel->activeSheetName(), kde, predtim, excel->cell(QString::fromUtf8(bunka))}}});
    }
    void dotaz(Answer odpoved, const char* bunka, const char* titulek = "Zpět") {
        dialogs.expect(QString::fromUtf8(titulek), QString::fromUtf8(bunka), odpoved);
    }

    OkoliPisne okoliPisne{pisen, dialogs, panel, prikazy};
    Navigace navigace{okoliPisne, zobrazeni, pasPisne, diskant, [] {}};
    Vraceni vraceni{okoliPisne, kroky, navigace};
};

TEST_F(VraceniTest, EveryRecordingIsAStepAndTheListIsOneOrderWithTheSheet) {
    const CellBlock prazdny = bunkyListu();
    std::vector<CellBlock> stavy{prazdny};
    const std::function<void()> akce[] = {
        [&] {
            zapisHmat("B1", {9, 13});
        },
        [&] { hracNapise("A1", "la"); },
        [&] {
            zapisHmat("B2", {1, 4, 7}, true);
        },
        [&] { zapisHmat("B1", {2}); }, // over the first one
        [&] { zapisHmat("B2", {}); },  // empties
        [&] { zapisZNot.cmdTlakNoty(); },
        [&] { hracNapise("V2", "l1;1\\"); },
    };
    for (const auto& jedna : akce) {
        jedna();
        stavy.push_back(bunkyListu());
    }
    ASSERT_NE(stavy[4], stavy[3]);
    for (int kolo = 0; kolo < 2; ++kolo) {
        for (std::size_t i = std::size(akce); i-- > 0;) {
            vraceni.mnuZpet();
            EXPECT_EQ(bunkyListu(), stavy[i]) << i;
        }
        EXPECT_EQ(s(vraceni.undoLabel()), "");
        for (std::size_t i = 1; i <= std::size(akce); ++i) {
            vraceni.mnuZnovu();
            EXPECT_EQ(bunkyListu(), stavy[i]) << i;
        }
        EXPECT_EQ(s(vraceni.redoLabel()), "");
    }
    vraceni.mnuZnovu(); // nothing to do
    EXPECT_EQ(dialogs.count, 0);
}

TEST_F(VraceniTest, TheWindowShowsTheRowOfTheStep) {
    zapisHmat("B2", {9});
    excel->selectRange("B5");
    excel->addWorkbook(); // in front of the song
    vraceni.mnuZpet();
    EXPECT_EQ(excel->activeWorkbookName(), pisen.aktualniPisen);
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    EXPECT_EQ(s(panel.upozorneni), "Vráceno: zápis hmatu 2.");
    EXPECT_EQ(s(panel.lblTon), "2");
    EXPECT_EQ(s(panel.lblTony), "");
    EXPECT_EQ(s(panel.krokZpet + u'/' + panel.krokZnovu), "/Zápis hmatu 2");
    EXPECT_TRUE(prikazy.povolen("mnuZnovu"));
    EXPECT_FALSE(prikazy.povolen("mnuZpet"));
    vraceni.mnuZnovu();
    EXPECT_EQ(s(panel.upozorneni), "Znovu: zápis hmatu 2.");
    EXPECT_EQ(s(panel.lblTony), "c1,");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    hracNapise("A7", "la");
    vraceni.mnuZpet();
    EXPECT_EQ(s(excel->activeAddress()), "$A$7") << "the player's own step is where he has made it";
}

TEST_F(VraceniTest, WhatStandsThereNowIsAskedAbout) {
    zapisHmat("B1", {9, 13});
    excel->put("C1", "moje");
    dotaz(Answer::No, "!C1");
    vraceni.mnuZpet();
    EXPECT_EQ(s(bunky(1, u'B', u'C')), "c1, moje");
    EXPECT_EQ(s(panel.krokZpet), "Zápis hmatu 1");
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No) << "what would be lost stays by itself";
    dotaz(Answer::Yes, "!C1");
    vraceni.mnuZpet();
    EXPECT_EQ(s(bunky(1, u'B', u'I')), "- - - - - - - -");
    excel->put("X1", "jinde");
    vraceni.mnuZnovu(); // beside the step
    excel->put("W1", "");
    excel->put("B1", ""); // what the step is going to put there itself needs no question
    vraceni.mnuZpet();
    excel->put("B1", "cizí");
    dotaz(Answer::No, "!B1", "Znovu");
    vraceni.mnuZnovu();
    EXPECT_EQ(s(excel->text("B1") + excel->text("X1")), "cizíjinde");
    zapisHmat("B3", {1, 2, 3, 4, 5, 6, 7});
    excel->put("B3:H3", "cizí");
    dotaz(Answer::No, "!F3 a další (2).");
    vraceni.mnuZpet();
}

TEST_F(VraceniTest, TheListSleepsWithItsSongAndIsNobodyElses) {
    zapisHmat("B1", {9});
    const QString jmeno = pisen.aktualniPisen;
    pisen.aktualniPisen.clear();
    vraceni.obnovPopisy();
    EXPECT_EQ(s(panel.krokZpet), "");
    EXPECT_FALSE(prikazy.povolen("mnuZpet"));
    EXPECT_FALSE(vraceni.keeps(jmeno));
    pisen.aktualniPisen = jmeno;
    const struct {
        const char *plneJmeno, *popis;
    } radky[] = {{"C:\\Dokumenty\\Valčík.xls", ""},
                 {"C:\\Dokumenty\\Heligonka\\..\\Polka.xls", "Zápis hmatu 1"}};
    for (const auto& [plneJmeno, popis] : radky) {
        pisen.plneJmeno = QString::fromUtf8(plneJmeno);
        EXPECT_EQ(s(vraceni.undoLabel()), popis) << plneJmeno;
    }
    kroky.prejmenuj(QStringLiteral("C:\\Jinam.xls"));
    EXPECT_EQ(s(vraceni.undoLabel()), "");
    pisen.plneJmeno = QStringLiteral("C:\\Jinam.xls");
    EXPECT_EQ(s(vraceni.undoLabel()), "Zápis hmatu 1");
    kroky.zapomen(pisen.plneJmeno);
    EXPECT_EQ(s(vraceni.undoLabel()), "");
    EXPECT_TRUE(vraceni.keeps(jmeno));
    EXPECT_FALSE(vraceni.keeps("Jiný.xls"));
    vraceni.obnovPopisy();
    const int ohlaseno = excel->stepsTold;
    pisen.aktualniPisen = QStringLiteral("Jiný.xls"); // with as many steps
    vraceni.obnovPopisy();
    EXPECT_EQ(excel->stepsTold, ohlaseno + 1);
}

TEST_F(VraceniTest, AFailureHalfWayLeavesTheRestToBeTakenBack) {
    const QString list = excel->activeSheetName();
    excel->put("B1", "c1,");
    excel->put("D1", "e1,");
    const CellBlock predtim = bunkyListu();
    zapisHmat("B1", {});
    ASSERT_NE(bunkyListu(), predtim);
    for (const char* operace : {"putBack", "finishWriting"}) {
        log.fail(operace, 1004);
        EXPECT_EQ(testing::raised([this] { vraceni.mnuZpet(); }), 1004) << operace;
        EXPECT_EQ(s(panel.krokZpet), "Smazání hmatu 1");
    }
    EXPECT_TRUE(panel.lblTony.startsWith("c1,")) << "what is there already is seen";
    log.calls.clear();
    vraceni.mnuZpet();
    EXPECT_EQ(bunkyListu(), predtim);
    EXPECT_FALSE(log.calls.contains("putBack")) << "all cells have their values already";
    // Of a step in more places what was done can be done again.
    hracNapise("A3", "x");
    vraceni.done({QStringLiteral("Dva listy"),
                  {CellTurned{QStringLiteral("není"), {1, 1}, {}, QStringLiteral("x")},
                   CellTurned{list, {3, 1}, {}, QStringLiteral("x")}}});
    vraceni.mnuZpet();
    EXPECT_TRUE(panel.upozorneni.contains("už vrátit nejde"));
    EXPECT_EQ(s(panel.krokZpet), "Psaní") << "a step of a sheet that is no more goes";
}

TEST_F(VraceniTest, ACellThatAStepTurnsTwiceGoesBackToWhatItWasAtFirst) {
    const QString list = excel->activeSheetName();
    excel->put("A3", "y");
    vraceni.done({QStringLiteral("Dvakrát"),
                  {CellTurned{list, {3, 1}, QString(), QStringLiteral("x")},
                   CellTurned{list, {3, 1}, QStringLiteral("x"), QStringLiteral("y")}}});
    vraceni.mnuZpet();
    EXPECT_EQ(s(excel->text("A3")), "") << "the empty text and nothing are one";
    vraceni.mnuZnovu();
    EXPECT_EQ(s(excel->text("A3")), "y");
    EXPECT_EQ(dialogs.count, 0);
}

TEST_F(VraceniTest, ARecordingThatFailsHalfWayIsAStepToo) {
    excel->put("M1", "C");
    const CellBlock predtim = bunkyListu();
    oznacTony({9});
    for (const char* operace : {"setValue", "moveCursor"}) {
        log.fail(operace, 1004);
        EXPECT_EQ(testing::raised([this] { zapis.cmdTah(); }), 1004) << operace;
        ASSERT_NE(bunkyListu(), predtim);
        vraceni.mnuZpet();
        EXPECT_EQ(bunkyListu(), predtim);
    }
}

TEST_F(VraceniTest, TheListHoldsAThousandSteps) {
    for (std::size_t i = 0; i < SeznamKroku::nejvice + 5; ++i)
        hracNapise("A1", QByteArray::number(qulonglong(i)).constData());
    std::size_t vraceno = 0;
    for (; !vraceni.undoLabel().isEmpty(); ++vraceno)
        vraceni.mnuZpet();
    EXPECT_EQ(vraceno, SeznamKroku::nejvice);
    EXPECT_EQ(s(excel->text("A1")), "4");
}

/// Short; `tools/steps` does the same for as long as one likes.
TEST_F(VraceniTest, WhateverIsDoneIsTakenBackAndDoneAgain) {
    const QString jmeno = QStringLiteral("C:\\Dokumenty\\Dva listy.xls");
    store(jmeno, {{QStringLiteral("Tonavox XII"), {{{}, QStringLiteral("c1,")}}},
                  {QStringLiteral("G dur"), {{{}, QStringLiteral("g1,")}}}});
    excel->openWorkbook(jmeno);
    pisen.aktualniPisen = excel->activeWorkbookName();
    pisen.plneJmeno = jmeno;
    for (const unsigned seminko : {1U, 2U, 3U}) {
        excel->selectSheet(1);
        testing::NahodnyHrac hrac(pisen, dialogs, drive, testing::rukaVestavene(excel->app()), seminko);
        const auto predtim = hrac.obraz();
        for (int i = 0; i < 200; ++i)
            hrac.akce();
        hrac.vse(SmerKroku::Znovu);
        const auto potom = hrac.obraz();
        for (int kolo = 0; kolo < 2; ++kolo) {
            EXPECT_GT(hrac.vse(SmerKroku::Zpet), 50);
            EXPECT_EQ(hrac.obraz(), predtim) << seminko;
            hrac.vse(SmerKroku::Znovu);
            EXPECT_EQ(hrac.obraz(), potom) << seminko;
        }
    }
}

} // namespace
} // namespace zvonika
