#include "playing/recording/PrevzetiHmatu.h"

#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

using testing::s;

class PrevzetiHmatuTest : public testing::Zapisovani {
protected:
    void napis(std::initializer_list<std::pair<const char*, const char*>> bunkyRadku) {
        for (const auto& [bunka, text] : bunkyRadku)
            excel->put(bunka, text);
    }
    QString noty5() const {
        QStringList nazvy;
        for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot)
            nazvy << (osnova.nota(slot) ? noty.ctenyNazev(slot).text() : QStringLiteral("-"));
        return nazvy.join(u' ');
    }

    PrevzetiHmatu prevzeti{
        {pisen, dialogs, panel, prikazy}, {diskant, basy, osnova, noty, prstoklad}, tabulka, tonina};
};

TEST_F(PrevzetiHmatuTest, TheStoredGripBecomesWhatIsMarkedAndIsRecordedAsItWas) {
    zvolToninu("C dur");
    napis({{"A2", "la"},
           {"B2", "c1,"},
           {"C2", "dis1,"},
           {"D2", "fis1,"},
           {"I2", "Tlak"},
           {"M2", "C"},
           {"N2", "C-dur"},
           {"V2", "l9;1\\s12;4\\"},
           {"W2", "C dur"}});
    const QString predtim = bunky(2, u'A', u'W');
    oznacTony({1, 9, 20});
    oznacBasy({10, 30});
    pridejPrst(3, "5");
    excel->selectRange("D2");
    prevzeti.mnuPrevzitHmat();
    EXPECT_EQ(diskant.oznacene(), (std::vector<int>{9, 12, 15}));
    EXPECT_EQ(basy.oznacene(), (std::vector<int>{30, 50}));
    EXPECT_EQ(s(noty5()), "c1, dis1, fis1, - -");
    EXPECT_EQ(diskant.stav(15), StavKnofliku::Cerveny);
    EXPECT_EQ(s(diskant.tonKlavesy(12)), "dis1,");
    EXPECT_EQ(s(panel.upozorneni), "Hmat 2 na tlak je převzat k opravě, zapíše ho F8, otočí na tah F7.");
    zapis.cmdTlak();
    EXPECT_EQ(s(bunky(2, u'A', u'W')), s(predtim));
    EXPECT_EQ(s(excel->activeAddress()), "$B$3");
}

TEST_F(PrevzetiHmatuTest, AFingerEnteredForATakenButtonTakesItsPlaceAndOthersStandAsTyped) {
    napis({{"B1", "c1,"}, {"V1", "l9;1\\s12;4\\l9;2\\"}});
    prevzeti.mnuPrevzitHmat();
    pridejPrst(9, "5");
    EXPECT_EQ(s(prstoklad.prstoklad()), "s12;4\\l9;5\\");
    pridejPrst(9, "3");
    EXPECT_EQ(s(prstoklad.prstoklad()), "s12;4\\l9;5\\l9;3\\");
}

TEST_F(PrevzetiHmatuTest, AToneThatIsPutRightLosesItsFingerInBothWaysOfRecording) {
    zvolToninu("C dur");
    KlikDiskantu klik{diskant, noty, tonina, dialogs, {[] {}, [](const QString&) {}}};
    const std::function<void()> zapisy[] = {[&] { zapis.cmdTlak(); }, [&] { zapisZNot.cmdTlakNoty(); }};
    for (const auto& zapis : zapisy) {
        napis({{"B1", "f1,"}, {"C1", "g1,"}, {"V1", "l14;3\\l16;4\\s16;5\\"}});
        excel->selectRange("B1");
        prevzeti.mnuPrevzitHmat();
        for (const int n : {14, 18, 16, 16}) // the last one by mistake
            klik.klik(n);
        zapis();
        EXPECT_EQ(s(bunky(1, u'B', u'D') + ' ' + bunky(1, u'V', u'V')), "g1, a1, - l16;4\\s16;5\\");
        EXPECT_TRUE(prstoklad.prazdny());
    }
}

TEST_F(PrevzetiHmatuTest, SaysWhatItCannotTakeAndWhatIsOtherThanChosen) {
    const struct {
        const char *zvolena, *tonina, *tony, *bas, *veta;
    } radky[] = {
        {"C dur", "G dur", "c1, d1, e1, f1, g1, a1, h1,", "C",
         "Hmat je v G dur, zapíše se v C dur; G dur zvolíte Ctrl+T. Hmat 1 je převzat"},
        {"Vyberte tóninu", "G dur", "c1,", "C",
         "Hmat je v G dur, zapíše se bez tóniny; G dur zvolíte Ctrl+T. Hmat 1"},
        {"C dur", "Vyberte tóninu", "c1, prd c9,", "Žádný",
         "zapíše ho F7 na tah, F8 na tlak. Převzít nejde a zápisem zmizí: tón prd c9, bas Žádný, prst 12 = "
         "1."},
    };
    for (const auto& [zvolena, toninaRadku, tony, bas, veta] : radky) {
        excel->put("A1:W1", "");
        excel->selectRange("B1");
        zvolToninu(QString::fromUtf8(zvolena));
        int sloupec = sloupce::tony.prvni;
        for (const QString& ton : QString::fromUtf8(tony).split(u' '))
            excel->put(adresa(sloupec++, 1), ton);
        napis({{"M1", bas}, {"V1", "l9;2\\l12;1\\"}, {"W1", toninaRadku}});
        prevzeti.mnuPrevzitHmat();
        EXPECT_TRUE(panel.upozorneni.contains(QString::fromUtf8(veta))) << s(panel.upozorneni);
    }
    EXPECT_EQ(s(noty5()), "c1, - - - -");
    excel->selectRange("B9");
    prevzeti.mnuPrevzitHmat();
    EXPECT_EQ(s(panel.upozorneni), "Na řádku 9 žádný hmat není, není co převzít.");
    EXPECT_EQ(diskant.oznacene(), std::vector<int>{9}) << "the marks stay";
    EXPECT_EQ(dialogs.count, 0);
}

} // namespace
} // namespace zvonika
