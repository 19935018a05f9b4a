#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class ZobrazeniHmatuTest : public SongFixture {
protected:
    // c1 is button 9, e1 button 13; e of the small octave is button 1.
    ZobrazeniHmatuTest() {
        excel->app().addWorkbook();
        napis(1, {"c1,", "e1,"}, {"C"});
    }
    void napis(int radek, const QStringList& tony, const QStringList& basy) {
        for (int i = 0; i < tony.size(); ++i)
            excel->put(QStringLiteral("%1%2").arg(QChar('B' + i)).arg(radek), tony[i]);
        for (int i = 0; i < basy.size(); ++i)
            excel->put(QStringLiteral("%1%2").arg(QChar('M' + i)).arg(radek), basy[i]);
    }
    void ukazRadek() { zobrazeni.ZobrazHmat(SongReader(pisen).kolemKurzoru()); }
    void naRadek(int radek) { excel->selectRange(QStringLiteral("B%1").arg(radek)); }
    QVector<int> knofliky(StavKnofliku stav) const {
        QVector<int> nalezene;
        for (int n = 1; n <= diskant.nastroj().pocetKnofliku(); ++n)
            if (diskant.stav(n) == stav) nalezene.append(n);
        return nalezene;
    }
};

} // namespace

TEST_F(ZobrazeniHmatuTest, ShowsTheRowOnTheSideThatWasAskedFor) {
    excel->put("I1", "Tah"); // not asked
    excel->selectRange("E1");
    zobrazeni.cmdReadTlak();
    EXPECT_TRUE(zobrazeni.zobrazenTlak());
    EXPECT_EQ(excel->activeAddress(), "$B$1");
    EXPECT_EQ(knofliky(StavKnofliku::Tlak), (QVector<int>{9, 13}));
    EXPECT_EQ(diskant.stavPomocneho(13), StavKnofliku::Tlak);
    EXPECT_EQ(basy.stav(30), StavBasu::Tlak);
    EXPECT_EQ(osnova.tony(), (QStringList{"c1,", "e1,"}));

    zobrazeni.cmdReadTah();
    EXPECT_FALSE(zobrazeni.zobrazenTlak());
    EXPECT_EQ(knofliky(StavKnofliku::Tlak), QVector<int>());
    EXPECT_EQ(knofliky(StavKnofliku::Tah), (QVector<int>{9, 13}));
    EXPECT_EQ(basy.stav(30), StavBasu::Tah);
}

TEST_F(ZobrazeniHmatuTest, MarksSurviveBehindTheShownGrip) {
    for (const int n : {9, 20})
        diskant.nastavZnacku(n, true);
    basy.klik(30);
    basy.klik(51);

    zobrazeni.cmdReadTah();
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tah);
    EXPECT_TRUE(diskant.oznacen(9));
    EXPECT_EQ(diskant.barvaKlavesy(9), BarvaKlavesy::Cervena);
    EXPECT_EQ(diskant.stav(20), StavKnofliku::Cerveny) << "not in the grip";

    naRadek(2);
    ukazRadek();
    EXPECT_EQ(knofliky(StavKnofliku::Cerveny), (QVector<int>{9, 20}));
    EXPECT_EQ(diskant.stav(13), StavKnofliku::Volny);
    EXPECT_EQ(diskant.stavPomocneho(13), StavKnofliku::Volny);
    EXPECT_EQ(diskant.stavPomocneho(20), StavKnofliku::Cerveny);
    EXPECT_EQ(basy.stav(30), StavBasu::Cerveny);
    EXPECT_EQ(basy.stav(51), StavBasu::Cerveny);
}

TEST_F(ZobrazeniHmatuTest, AnotherGripTakesTheIntervalAway) {
    zobrazeni.cmdReadTah();
    diskant.ukazInterval(13); // covers a picture of the grip
    osnova.ukazInterval({"e1,", {}});
    naRadek(2);
    ukazRadek();
    EXPECT_EQ(knofliky(StavKnofliku::Hnedy), QVector<int>());
    EXPECT_EQ(knofliky(StavKnofliku::Tah), QVector<int>());
    EXPECT_EQ(diskant.barvaKlavesy(13), BarvaKlavesy::CaptionText);
    EXPECT_FALSE(osnova.interval());
}

TEST_F(ZobrazeniHmatuTest, TonesAreReadAcrossGapsAndWhatIsNotReadIsTold) {
    const QString basy = "Basy za prázdnou buňkou se nečtou.";
    for (const auto& [bunka, ocekavano] : {std::pair{"D1", QString()},
                                           {"E1", QString()},
                                           {"H1", QString()},
                                           {"N1", QString()},
                                           {"O1", basy},
                                           {"S1", basy},
                                           {"T1", QString()}}) {
        const bool bas = bunka[0] > 'I';
        excel->put(bunka, QString(bas ? "C" : "g1,"));
        ukazRadek();
        EXPECT_EQ(panel.upozorneni, ocekavano) << bunka;
        EXPECT_EQ(panel.lblTony, bas ? "c1, e1," : "c1, e1, g1,") << bunka;
        EXPECT_EQ(knofliky(StavKnofliku::Tah), (bas ? QVector<int>{9, 13} : QVector<int>{9, 13, 16}))
            << bunka;
        EXPECT_EQ(osnova.tony().join(u' '), panel.lblTony) << bunka;
        excel->put(bunka, "");
    }
    excel->put("B1", "");
    ukazRadek();
    EXPECT_EQ(panel.lblTony, "e1,");
    EXPECT_TRUE(panel.upozorneni.startsWith("Sloupec B je na tomto řádku prázdný"));
}

TEST_F(ZobrazeniHmatuTest, AGripShownOnTheOtherSideThanItWasRecordedOnSaysSo) {
    const struct {
        const char* smer;
        bool tlak;
        const char *strana, *veta;
    } pripady[] = {{"Tah", false, "", ""},
                   {"Tlak", false, "zapsáno na tlak", "Hmat je ukázán na tah, ale zapsán na tlak (Ctrl+→)."},
                   {"Tlak", true, "", ""},
                   {"Tah", true, "zapsáno na tah", "Hmat je ukázán na tlak, ale zapsán na tah (Ctrl+←)."},
                   {"", true, "", ""}};
    for (const auto& [smer, tlak, strana, veta] : pripady) {
        excel->put("I1", QString(smer));
        tlak ? zobrazeni.cmdReadTlak() : zobrazeni.cmdReadTah();
        EXPECT_EQ(panel.lblStrana, strana);
        EXPECT_EQ(panel.upozorneni, veta);
        zobrazeni.odeberHmat();
        EXPECT_EQ(panel.lblStrana, "");
    }
}

TEST_F(ZobrazeniHmatuTest, TextPanelShowsTheRowAndItsNeighbours) {
    for (int radek = 1; radek <= 7; ++radek)
        excel->put(QStringLiteral("A%1").arg(radek), QStringLiteral("s%1").arg(radek));
    excel->put("W1", "Vyberte tóninu");
    struct Pripad {
        int radek;
        std::array<QString, 5> slabiky;
    };
    for (const auto& [radek, slabiky] : {Pripad{1, {"", "", "s1", "s2", "s3"}},
                                         {2, {"", "s1", "s2", "s3", "s4"}},
                                         {3, {"s1", "s2", "s3", "s4", "s5"}},
                                         {6, {"s4", "s5", "s6", "s7", ""}},
                                         {65536, {"", "", "", "", ""}}}) {
        naRadek(radek);
        ukazRadek();
        EXPECT_EQ(panel.lblSlabika, slabiky) << radek;
        EXPECT_EQ(panel.lblTon, QString::number(radek));
    }
    naRadek(1);
    panel.popisyViditelne = false;
    zobrazeni.ZobrazTexty(SongReader(pisen).kolemKurzoru());
    EXPECT_TRUE(panel.popisyViditelne);
    EXPECT_EQ(panel.lblTony, "c1, e1,");
    EXPECT_EQ(panel.lblBasy, "C");
    EXPECT_EQ(panel.lblStupnice, "Vyberte tóninu");
}

TEST_F(ZobrazeniHmatuTest, QuietShowingTakesTheSideFromTheRowAndLeavesTheCursor) {
    struct Pripad {
        const char* smer;
        bool tlakPredtim, tlakPotom;
    };
    for (const auto& [smer, predtim, potom] :
         {Pripad{"Tah", true, false}, {"Tlak", false, true}, {"", true, true}, {"", false, false}}) {
        excel->selectRange("B1");
        predtim ? zobrazeni.cmdReadTlak() : zobrazeni.cmdReadTah();
        excel->put("I1", QString(smer));
        excel->selectRange("A1");
        EXPECT_EQ(zobrazeni.ZobrazHmatPotichu(SongReader(pisen).kolemKurzoru()), smerMechu(smer));
        EXPECT_EQ(zobrazeni.zobrazenTlak(), potom) << smer;
        EXPECT_EQ(diskant.stav(9), potom ? StavKnofliku::Tlak : StavKnofliku::Tah);
        EXPECT_EQ(excel->activeAddress(), "$A$1");
    }
}

TEST_F(ZobrazeniHmatuTest, QuietShowingTellsAFaultyFingeringInsteadOfABox) {
    for (const auto& [zaznam, popis] : {std::pair{"l9;1\\", "1\r\n"}, {"", ""}, {"s1;1\\", ""}}) {
        diskant.nastavPopis(9, "3\r\n");
        excel->put("V1", zaznam);
        zobrazeni.ZobrazHmatPotichu(SongReader(pisen).kolemKurzoru());
        EXPECT_EQ(diskant.popis(9), popis);
        EXPECT_EQ(panel.upozorneni.contains("Prstoklad"), zaznam[0] == 's') << zaznam;
    }
}

} // namespace zvonika::testing
