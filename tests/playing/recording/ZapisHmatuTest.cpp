#include "platform/Contact.h"
#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

using testing::s;

class ZapisHmatuTest : public testing::Zapisovani {};

TEST_F(ZapisHmatuTest, AGripFillsItsRowAndTheCursorGoesOn) {
    zvolToninu("C dur");
    oznacTony({16, 9, 13});
    oznacBasy({50, 30});
    pridejPrst(9, "1");
    prikazy.povol("cmdPredchozi", false);
    int zmen = 0;
    QObject::connect(&panel, &SongPanel::zmeneno, &panel, [&] { ++zmen; });
    zapis.cmdTah();

    EXPECT_EQ(zmen, 1);
    EXPECT_TRUE(prikazy.povolen("cmdPredchozi"));
    EXPECT_EQ(s(bunky(1, u'A', u'W')), "- c1, e1, g1, - - - - Tah - - - C C-dur - - - - - - - l9;1\\ C dur");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    EXPECT_EQ(s(panel.lblTon), "2");
    EXPECT_EQ(panel.zapsanychHmatu, 1);
    EXPECT_EQ(s(panel.zapsano), "Hmat 1 je zapsán na tah.");
    EXPECT_EQ(s(prstoklad.prstoklad()), "");
    EXPECT_TRUE(pas.viditelny);
    EXPECT_EQ(pas.prvniRadekPasu, 2);
    for (const int n : {9, 13, 16})
        EXPECT_TRUE(diskant.oznacen(n));
    EXPECT_TRUE(basy.oznacen(30) && basy.oznacen(50));
}

TEST_F(ZapisHmatuTest, TonesAreSpelledInTheKeyWhoseCaptionStandsInColumnW) {
    const struct {
        const char *cmdStupnice, *tony, *sloupecW;
    } radky[] = {{"D dur", "fis, ais, c1, -", "D dur"},
                 {"Ges dur", "ges, b, c1, -", "Ges dur"},
                 {"Vyberte tóninu", "fis, ais, c1, -", "Vyberte tóninu"},
                 {"Vyberte stupnici", "fis, ais, c1, -", ""},
                 {"", "fis, ais, c1, -", ""}};
    oznacTony({3, 7, 9});
    for (const auto& [cmdStupnice, tony, sloupecW] : radky) {
        excel->selectRange("B1");
        zvolToninu(QString::fromUtf8(cmdStupnice));
        zapis.cmdTah();
        EXPECT_EQ(s(bunky(1, u'B', u'E')), tony);
        EXPECT_EQ(s(excel->text("W1")), sloupecW);
        EXPECT_EQ(s(tonina.stupnice().text()), cmdStupnice);
    }
}

TEST_F(ZapisHmatuTest, RecordingOverAGripLeavesNothingOfItButForeignColumns) {
    for (QChar sloupec = u'A'; sloupec <= u'X'; sloupec = QChar(sloupec.unicode() + 1))
        excel->put(sloupec + QStringLiteral("1"), QStringLiteral("stary"));
    oznacTony({1});
    oznacBasy({34});
    zapis.cmdTlak();
    EXPECT_EQ(s(bunky(1, u'A', u'L')), "stary e, - - - - - - Tlak stary stary stary");
    EXPECT_EQ(s(bunky(1, u'M', u'X')), "E - - - - - - - stary - Vyberte tóninu stary");
}

TEST_F(ZapisHmatuTest, EightFingersWriteTheSevenLowestWithOneMessage) {
    oznacTony({49, 2, 4, 6, 8, 9, 11, 13});
    dialogs.expect(
        "Diagnóza mnohoprstost.",
        "Páč asi nemáte více než sedm prstů na pravé ruce, program se Vám na zápis dalších knoflíků se "
        "vší úctou u tohoto hmatu vykašle. Sťěžovat si můžete u " +
            kontakt);
    zapis.cmdTah();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(s(bunky(1, u'B', u'I')), "f, g, a, h, c1, d1, e1, Tah");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
}

TEST_F(ZapisHmatuTest, BassesAloneMakeAGripWithoutTheEighthWhichHasItsMessage) {
    oznacBasy({120, 30, 31, 32, 33, 34, 35, 10});
    dialogs.expect("Sdělení pro mutanty.", kontakt);
    zapis.cmdTah();
    EXPECT_EQ(s(bunky(1, u'M', u'T')), "E/C C G D A E H -");
    EXPECT_EQ(s(excel->text("I1")), "Tah");
}

TEST_F(ZapisHmatuTest, AnEmptyGripOnlyEmptiesItsRow) {
    for (const char* bunka : {"B2", "H2", "I2", "M2", "T2", "V2", "W2"})
        excel->put(bunka, "stary");
    excel->selectRange("D2");
    pridejPrst(3, "5");
    zapis.cmdTah();
    EXPECT_EQ(s(bunky(2, u'B', u'W')), "- - - - - - - - - - - - - - - - - - - - stary Vyberte tóninu");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    EXPECT_EQ(s(prstoklad.prstoklad()), "l3;5\\");
    EXPECT_EQ(panel.zapsanychHmatu, 0);
    EXPECT_EQ(s(panel.upozorneni), "Hmat 2 smazán, nic nebylo označeno. Ctrl+Z ho vrátí. Prstoklad ve "
                                   "sloupci V není platný.");
    EXPECT_EQ(dialogs.count, 0);
    zapis.cmdTah();
    EXPECT_TRUE(panel.upozorneni.startsWith("Není co zapsat, hmat 2 zůstává prázdný.")) << "it was empty";
    zvolToninu("Vyberte stupnici");
    zapis.cmdTah();
    EXPECT_EQ(s(excel->text("W2")), "");
    EXPECT_TRUE(panel.upozorneni.startsWith("Není co zapsat")) << "a key is no grip";
}

TEST_F(ZapisHmatuTest, AnEmptiedGripIsSeenAtOnce) {
    excel->put("A1", "la");
    excel->put("B1", "c1,");
    excel->put("I1", "Tlak");
    excel->put("M1", "C");
    zobrazeni.cmdReadTlak();
    pasPisne.obnov(pasPisne.ctiPoZmene());
    ASSERT_FALSE(pas.pozice[0].tony.isEmpty());
    panel.barvaKroku = BarvaKroku::Tlak;
    ASSERT_EQ(diskant.stav(9), StavKnofliku::Tlak);
    zapis.cmdTah();
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Volny);
    EXPECT_EQ(basy.stav(30), StavBasu::Volny);
    EXPECT_EQ(s(panel.lblTony + panel.lblBasy), "");
    EXPECT_EQ(s(panel.lblSlabika[2]), "la");
    EXPECT_TRUE(pas.pozice[0].tony.isEmpty());
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tlak);
    EXPECT_TRUE(zobrazeni.zobrazenTlak());
    EXPECT_EQ(s(panel.zapsano), "");
}

TEST_F(ZapisHmatuTest, TheNextGripIsShownByItsDirection) {
    const struct {
        const char* smer;
        StavKnofliku stav;
        BarvaKroku barva;
    } radky[] = {{"Tlak", StavKnofliku::Tlak, BarvaKroku::TlakPoZapisu},
                 {"Tah", StavKnofliku::Tah, BarvaKroku::Tah},
                 {"tah", StavKnofliku::Volny, BarvaKroku::Neznamy},
                 {"", StavKnofliku::Volny, BarvaKroku::Neznamy}};
    oznacTony({1});
    excel->put("A6", "la");
    excel->put("B6", "c1,");
    for (const auto& [smer, stav, barva] : radky) {
        SCOPED_TRACE(smer);
        excel->put("I6", smer);
        excel->selectRange("B5");
        diskant.odeberHmat();
        panel.barvaKroku = BarvaKroku::Neznamy;
        zapis.cmdTah();
        EXPECT_EQ(diskant.stav(9), stav);
        EXPECT_EQ(panel.barvaKroku, barva);
        EXPECT_EQ(s(panel.lblSlabika[2]), "la");
        EXPECT_EQ(s(pas.pozice[static_cast<std::size_t>(pas.poziceVPasu - 1)].slabika), "la");
        EXPECT_EQ(s(excel->activeAddress()), "$B$6");
        EXPECT_TRUE(diskant.oznacen(1));
    }
}

TEST_F(ZapisHmatuTest, BassesWithoutANameAloneAreNoGrip) {
    const QString slozka = drive.nativePath(pracovniAdresar);
    tabulka = BassTable(slozka, 120);
    oznacBasy({30});
    dialogs.expect("Bas nebyl zapsán !", "\nOznačené basy, jejichž jméno tabulka neuvádí");
    zapis.cmdTah();
    EXPECT_FALSE(dialogs.last.text.contains(u'\r')) << "lines end as in every box";
    EXPECT_EQ(s(excel->activeAddress()), "$B$1");
    ASSERT_TRUE(QFile::copy(QStringLiteral(ZVONIKA_RESOURCES "/tonavox.xml"), slozka + "/tonavox.xml"));
    zapis.cmdTah();
    EXPECT_EQ(s(bunky(1, u'M', u'M')), "C") << "a repaired table counts at once";
}

TEST_F(ZapisHmatuTest, AnotherWorkbookInFrontIsLeftAlone) {
    oznacTony({1});
    excel->app().addWorkbook();
    zapis.cmdTah();
    EXPECT_EQ(s(excel->activeWorkbookName()), s(pisen.aktualniPisen));
    EXPECT_EQ(s(excel->text("B1")), "e,");
}

TEST_F(ZapisHmatuTest, FailuresReachTheCallerAndKeepTheFingeringOfWhatIsNotWritten) {
    oznacTony({1});
    const struct {
        const char* operace;
        int cislo;
    } radky[] = {{"activateWindow", 9}, {"writeBlock", 1004}, {"setValue", 91}, {"moveCursor", 1004}};
    for (const auto& [operace, cislo] : radky) {
        pridejPrst(1, "1");
        log.fail(operace, cislo);
        EXPECT_EQ(testing::raised([this] { zapis.cmdTah(); }), cislo) << operace;
        EXPECT_EQ(prstoklad.odeber().isEmpty(), operace == QLatin1String("moveCursor")) << operace;
    }
    EXPECT_EQ(panel.zapsanychHmatu, 0);
}

TEST_F(ZapisHmatuTest, AGripCostsFewCallsHoweverManyTonesItHas) {
    oznacTony({1, 2, 4, 6, 8, 9, 11});
    oznacBasy({21, 22, 23, 24, 25, 26, 27});
    log.calls.clear();
    zapis.cmdTah();
    EXPECT_LE(log.calls.size(), 19) << s(log.calls.join(u' '));
    EXPECT_EQ(dialogs.count, 0) << "seven of both need no message";
    EXPECT_EQ(s(bunky(1, u'H', u'T')), "d1, Tah - - - Heses Fes Ces Ges Des As Es -");
}

} // namespace
} // namespace zvonika
