#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class PasPisneTest : public SongFixture {
protected:
    void naRadek(int radek) { excel->selectRange(QStringLiteral("B%1").arg(radek)); }
};

} // namespace

TEST_F(PasPisneTest, RedrawsSixteenRowsFromTheCursorInOneRead) {
    otevriPolku(40);
    naRadek(21);
    const int predtim = log.count("readBlock");
    pasPisne.ZobrazPas();
    EXPECT_EQ(log.count("readBlock"), predtim + 1);
    EXPECT_EQ(pas.prvniRadekPasu, 21);
    EXPECT_EQ(pas.poziceVPasu, 1);
    EXPECT_EQ(pas.pozice[0].slabika, "s21");
    EXPECT_EQ(pas.pozice[15].slabika, "s36");
    EXPECT_EQ(pas.pozice[15].tony, QStringList{"c1,"});
    EXPECT_EQ(pas.pozice[1].smer, SmerMechu::Tlak);
}

TEST_F(PasPisneTest, NotesStopAtTheFirstEmptyGripButSyllablesGoOn) {
    otevriPolku(8);
    excel->put("B4", QString());
    excel->put("M4", "C"); // basses only: not empty
    excel->put("B6", QString());
    pasPisne.ZobrazPas();
    EXPECT_EQ(pas.pozice[3].tony, QStringList());
    EXPECT_EQ(pas.pozice[3].smer, SmerMechu::Tlak);
    EXPECT_EQ(pas.pozice[4].tony, QStringList{"c1,"});
    EXPECT_EQ(pas.pozice[5].slabika, "s6");
    EXPECT_EQ(pas.pozice[6].slabika, "s7");
    EXPECT_EQ(pas.pozice[6].tony, QStringList());
    EXPECT_EQ(pas.pozice[6].smer, SmerMechu::Neuveden);
}

TEST_F(PasPisneTest, HighlightMovesInsideAndTheStripIsRedrawnOutside) {
    otevriPolku(40);
    struct Pripad {
        int pozice, oKolik, ocekavana;
        bool kresli;
    };
    for (const auto& [pozice, oKolik, ocekavana, kresli] : {Pripad{1, 1, 2, false},
                                                            {15, 1, 16, false},
                                                            {16, 1, 1, true},
                                                            {2, -1, 1, false},
                                                            {1, -1, 1, true}}) {
        naRadek(10);
        pasPisne.ZobrazPas();
        pas.poziceVPasu = pozice;
        naRadek(10 + pozice - 1 + oKolik);
        int posunu = 0, kresleni = 0;
        const auto a = QObject::connect(&pas, &Pas::posunuto, [&] { ++posunu; });
        const auto b = QObject::connect(&pas, &Pas::zmeneno, [&] { ++kresleni; });
        pasPisne.posun(oKolik);
        EXPECT_EQ(pas.poziceVPasu, ocekavana);
        EXPECT_EQ(kresleni, kresli ? 1 : 0) << pozice << oKolik;
        EXPECT_EQ(posunu, kresli ? 0 : 1) << pozice << oKolik;
        EXPECT_EQ(pas.prvniRadekPasu, kresli ? excel->activeRow() : 10);
        QObject::disconnect(a);
        QObject::disconnect(b);
    }
}

TEST_F(PasPisneTest, FollowsTheCursorAndTheCells) {
    otevriPolku(40);
    excel->put("A3", "nová");
    naRadek(16);
    pasPisne.obnov();
    EXPECT_EQ(pas.poziceVPasu, 16);
    EXPECT_EQ(pas.prvniRadekPasu, 1);
    EXPECT_EQ(pas.pozice[2].slabika, "nová");
    naRadek(17);
    pasPisne.obnov();
    EXPECT_EQ(pas.poziceVPasu, 1);
    EXPECT_EQ(pas.prvniRadekPasu, 17);
    pasPisne.vyprazdni();
    EXPECT_FALSE(pas.viditelny);
    EXPECT_EQ(pas.pozice[0].slabika, "");
    EXPECT_EQ(pas.prvniRadekPasu, 1);
}

} // namespace zvonika::testing
