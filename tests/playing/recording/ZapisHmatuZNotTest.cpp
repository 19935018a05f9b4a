#include "tests/playing/recording/ZapisovaniFixture.h"
#include "tests/theory/KresleniTonu.h"

namespace zvonika {
namespace {

using testing::s;

class ZapisHmatuZNotTest : public testing::Zapisovani {
protected:
    void polozTony(const std::vector<int>& tony) {
        for (const int ton : tony)
            ASSERT_TRUE(noty.zakresliNotu(testing::kreslenaNota(ton, tonina.stupnice(), dialogs)));
    }
};

TEST_F(ZapisHmatuZNotTest, NotesAreWrittenFromTheLowestToneUp) {
    zvolToninu("F dur");
    polozTony({49, 7, 16, 9, 13}); // F dur writes its highest tone as its lowest
    oznacBasy({29});
    pridejPrst(7, "1");
    zapisZNot.cmdTlakNoty();
    EXPECT_EQ(s(bunky(1, u'B', u'M')), "e, b, c1, e1, g1, - - Tlak - - - F");
    EXPECT_EQ(s(bunky(1, u'V', u'W')), "l7;1\\ F dur");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    EXPECT_EQ(s(panel.lblTon), "2");
    EXPECT_EQ(s(panel.zapsano), "Hmat 1 je zapsán na tlak.");
    EXPECT_EQ(panel.zapsanychHmatu, 0); // only grips from the board are counted
    EXPECT_EQ(s(prstoklad.prstoklad()), "");
    EXPECT_TRUE(pas.viditelny);
    EXPECT_TRUE(osnova.nota(4));
}

TEST_F(ZapisHmatuZNotTest, AnEmptyStaffStillRecordsItsDirection) {
    excel->put("B1", "stary");
    excel->put("B2", "c1,");
    excel->put("I2", "Tah");
    zapisZNot.cmdTahNoty();
    EXPECT_EQ(s(bunky(1, u'B', u'I')), "- - - - - - - Tah");
    EXPECT_EQ(s(panel.zapsano), "Hmat 1 smazán: nic nebylo označeno, zapsán je jen tah. Ctrl+Z ho vrátí.");
    EXPECT_EQ(s(excel->activeAddress()), "$B$2");
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tah);
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tah);
}

TEST_F(ZapisHmatuZNotTest, EmptySlotsAreSkippedAndMarksOfTheBoardIgnored) {
    polozTony({1, 9, 13});
    noty.odeberNotu(1);
    oznacTony({40});
    excel->put("D1", "stary");
    zapisZNot.cmdTahNoty();
    EXPECT_EQ(s(bunky(1, u'B', u'E')), "e, e1, - -");
    EXPECT_EQ(s(panel.zapsano), "Hmat 1 je zapsán na tah.") << "one tone less";
}

TEST_F(ZapisHmatuZNotTest, TonesForWhichTheStaffHasNoPlaceAreNamed) {
    zvolToninu("F dur");
    polozTony({2, 6, 9, 13, 16});
    oznacTony({2, 6, 9, 13, 16});
    zapisZNot.cmdTahNoty();
    EXPECT_EQ(s(panel.upozorneni), "") << "all five are written";
    oznacTony({3, 21});
    zapisZNot.cmdTahNoty();
    EXPECT_EQ(s(bunky(2, u'B', u'H')), "f, a, c1, e1, g1, - -");
    EXPECT_EQ(s(panel.upozorneni),
              "Osnova má jen pět not, nezapsáno: ges, c2. Celý hmat zapíše z hmatníku F7 nebo F8.");
}

TEST_F(ZapisHmatuZNotTest, ANoteThatIsNoToneEndsTheRecordingAtOnce) {
    zvolToninu("C dur");
    osnova.polozNotu(0, {{Znamenko::Zadne, 420}, CisloTonu(9)});
    osnova.polozNotu(1, {{Znamenko::Zadne, 0}, CisloTonu::neznamy()});
    osnova.polozNotu(2, {{Znamenko::Zadne, 540}, CisloTonu(13)});
    for (const char* bunka : {"C1", "I1", "M1", "V1"})
        excel->put(bunka, "stary");
    pridejPrst(9, "1");
    oznacBasy({30});
    dialogs.expect("Chyba programu",
                   "Nota není platná pro zvoniku. Nebude zapsána a procedura bude předčasně "
                   "ukončena. Upozorněte prosím na tuto chybu autora programu.");
    zapisZNot.cmdTahNoty();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(s(bunky(1, u'B', u'M')), "c1, - - - - - - - - - - stary");
    EXPECT_EQ(s(bunky(1, u'V', u'W')), "stary C dur");
    EXPECT_EQ(s(prstoklad.prstoklad()), "l9;1\\");
    EXPECT_EQ(s(excel->activeAddress()), "$B$1");
    EXPECT_FALSE(pas.viditelny);
}

TEST_F(ZapisHmatuZNotTest, TonesOfARowAreSortedByTheirNumber) {
    const struct {
        QStringList tony;
        const char* vysledek;
    } radky[] = {
        {{"e1,", "c1,", "h,", "b,"}, "b, h, c1, e1, - - -"},
        {{}, "- - - - - - -"},
        {{"des1,", "cis1,", "c1,"}, "c1, des1, cis1, - - - -"}, // equal tones keep their order
        {{"e1,", "nic", "c1,"}, "c1, e1, c1, - - - -"},         // foreign text is not written back
        {{"e1,", "", "c1,"}, "e1, - c1, - - - -"},              // up to the first empty cell
    };
    for (const auto& [tony, vysledek] : radky) {
        excel->clearContents("B1:H1");
        for (qsizetype i = 0; i < tony.size(); ++i)
            excel->put(QChar(static_cast<char16_t>(u'B' + i)) + QStringLiteral("1"), tony.at(i));
        SongSheet list(pisen);
        ZapisHmatuZNot::SeradTonyHmatu(list, list.zacniZapis());
        EXPECT_EQ(s(bunky(1, u'B', u'H')), vysledek);
    }
}

} // namespace
} // namespace zvonika
