#include "playing/stepping/StavovyRadek.h"
#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class PasPisneTest : public SongFixture {
protected:
    void naRadek(int radek) { excel->selectRange(QStringLiteral("B%1").arg(radek)); }
};

} // namespace

TEST_F(PasPisneTest, NotesStopAtTheFirstEmptyGripButSyllablesGoOn) {
    otevriPolku(40);
    excel->put("B4", QString());
    excel->put("M4", "C"); // basses only: not empty
    excel->put("B6", QString());
    pasPisne.ZobrazPas(pasPisne.ctiOdKurzoru());
    EXPECT_EQ(pas.pozice[3].tony, QStringList());
    EXPECT_EQ(pas.pozice[3].smer, SmerMechu::Tlak);
    EXPECT_EQ(pas.pozice[4].tony, QStringList{"c1,"});
    EXPECT_EQ(pas.pozice[5].slabika, "s6");
    EXPECT_EQ(pas.pozice[6].slabika, "s7");
    EXPECT_EQ(pas.pozice[6].tony, QStringList());
    EXPECT_EQ(pas.pozice[6].smer, SmerMechu::Neuveden);
    naRadek(21);
    pasPisne.ZobrazPas(pasPisne.ctiOdKurzoru());
    EXPECT_EQ(pas.prvniRadekPasu, 21);
    EXPECT_EQ(pas.pozice[15].slabika, "s36");
    EXPECT_EQ(pas.pozice[15].tony, QStringList{"c1,"});
}

TEST_F(PasPisneTest, HighlightMovesInsideAndTheStripIsRedrawnOutside) {
    otevriPolku(40);
    int posunu = 0, kresleni = 0;
    QObject::connect(&pas, &Pas::posunuto, &pas, [&] { ++posunu; });
    QObject::connect(&pas, &Pas::zmeneno, &pas, [&] { ++kresleni; });
    const struct {
        int pozice, oKolik, ocekavana;
        bool kresli;
    } radky[] = {{15, 1, 16, false}, {16, 1, 1, true}, {2, -1, 1, false}, {1, -1, 1, true}};
    for (const auto& [pozice, oKolik, ocekavana, kresli] : radky) {
        naRadek(10);
        pasPisne.ZobrazPas(pasPisne.ctiOdKurzoru());
        pas.poziceVPasu = pozice;
        naRadek(10 + pozice - 1 + oKolik);
        posunu = kresleni = 0;
        pasPisne.posun(oKolik, pasPisne.ctiPoPosunu(oKolik));
        EXPECT_EQ(pas.poziceVPasu, ocekavana);
        EXPECT_EQ(kresleni, kresli ? 1 : 0) << pozice << oKolik;
        EXPECT_EQ(posunu, kresli ? 0 : 1) << pozice << oKolik;
        EXPECT_EQ(pas.prvniRadekPasu, kresli ? excel->activeRow() : 10);
    }
}

TEST_F(PasPisneTest, FollowsTheCursorAndTheCells) {
    otevriPolku(40);
    excel->put("A3", "nová");
    naRadek(16);
    pasPisne.obnov(pasPisne.ctiPoZmene());
    EXPECT_EQ(pas.poziceVPasu, 16);
    EXPECT_EQ(pas.prvniRadekPasu, 1);
    EXPECT_EQ(pas.pozice[2].slabika, "nová");
    naRadek(17);
    pasPisne.obnov(pasPisne.ctiPoZmene());
    EXPECT_EQ(pas.poziceVPasu, 1);
    EXPECT_EQ(pas.prvniRadekPasu, 17);
    pasPisne.vyprazdni();
    EXPECT_FALSE(pas.viditelny);
    EXPECT_EQ(pas.pozice[0].slabika, "");
    EXPECT_EQ(pas.prvniRadekPasu, 1);
    naRadek(5);
    pasPisne.obnov(pasPisne.ctiPoZmene());
    EXPECT_EQ(pas.prvniRadekPasu, 5) << "an empty strip has no rows to keep";
}

TEST(StavovyRadek, TellsTheNextStepAndWarnsOfAMissingKeyWhileWriting) {
    struct Pripad {
        StavProgramu stav;
        const char* obsahuje;
        bool varujeOTonine;
    };
    const QString vyberte = "Vyberte tóninu";
    const Pripad pripady[] = {
        {{false, vyberte, true, true, ""}, "Nová píseň", false},
        {{true, vyberte, true, true, ""}, "Označte knoflíky", true},
        {{true, "G dur", true, true, ""}, "Označte knoflíky", false},
        {{true, vyberte, false, true, ""}, "< Tah nebo > Tlak", true},
        {{true, "G dur", false, false, ""}, "< Tah nebo > Tlak", false},
        {{true, vyberte, true, false, ""}, "PageDown", false},
        {{true, "G dur", true, false, "", "", true}, "klávesa F9", false},
        {{true, vyberte, true, true, "Neznámý tón."}, "Neznámý tón.", false},
        {{true, "G dur", false, true, "", "Hmat 3 je zapsán na tah."},
         "Hmat 3 je zapsán na tah. Knoflíky",
         false},
        {{true, vyberte, false, true, "", "Hmat 3 je zapsán na tah."}, "F4", true},
        {{true, vyberte, false, true, "Neznámý bas.", "Hmat 3 je zapsán."}, "zapsán. Neznámý bas.", false},
    };
    for (const auto& [stav, obsahuje, varuje] : pripady) {
        const QString text = stavovyRadek(stav);
        EXPECT_TRUE(text.contains(QString::fromUtf8(obsahuje))) << text.toStdString();
        EXPECT_EQ(text.contains("Tónina není zvolena"), varuje) << text.toStdString();
        EXPECT_FALSE(!stav.zapsano.isEmpty() && text.contains("Zapište hmat")) << text.toStdString();
    }
}

} // namespace zvonika::testing
