#include "board/BassBoard.h"
#include "board/TrebleBoard.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(TrebleBoard, ReleasedKeyTwentyEightIsANaturalLikeTheOthers) {
    TrebleBoard deska{nastrojZvonika()};
    EXPECT_EQ(deska.barvaKlavesy(27), BarvaKlavesy::WindowText);
    deska.uvolniDiskant();
    EXPECT_EQ(deska.barvaKlavesy(28), BarvaKlavesy::WindowBackground) << "it was not marked";
    deska.nastavZnacku(28, true);
    EXPECT_EQ(deska.barvaKlavesy(28), BarvaKlavesy::Cervena);
    deska.nastavZnacku(28, false);
    EXPECT_EQ(deska.barvaKlavesy(28), BarvaKlavesy::CaptionText);
}

TEST(TrebleBoard, AGripGoesWholeAndAMarkOverItKeepsItsRedKey) {
    TrebleBoard deska{nastrojZvonika()};
    for (int n = 1; n <= 49; ++n)
        deska.ukazHmat(n, StavKnofliku::Tlak);
    deska.nastavZnacku(9, true);
    EXPECT_EQ(deska.barvaKlavesy(9), BarvaKlavesy::Cervena);
    deska.ukazInterval(9);
    EXPECT_EQ(deska.barvaKlavesy(9), BarvaKlavesy::Hneda);
    deska.odeberHmat();
    EXPECT_EQ(deska.barvaKlavesy(9), BarvaKlavesy::Cervena);
    for (int n = 1; n <= 49; ++n) {
        EXPECT_EQ(deska.stav(n), n == 9 ? StavKnofliku::Cerveny : StavKnofliku::Volny) << n;
        EXPECT_EQ(deska.stavPomocneho(n), StavKnofliku::Volny) << n;
    }
}

TEST(TrebleBoard, ButtonsWithoutATwinShowOnlyTheirMainPicture) {
    TrebleBoard deska{nastrojZvonika()};
    for (const int n : {1, 3, 48}) {
        deska.ukazHmat(n, StavKnofliku::Tah);
        deska.nastavPopisPomocneho(n, QStringLiteral("5"));
        EXPECT_EQ(deska.stav(n), StavKnofliku::Tah);
        EXPECT_EQ(deska.stavPomocneho(n), StavKnofliku::Volny);
        EXPECT_EQ(deska.popisPomocneho(n), QString());
    }
    deska.ukazHmat(49, StavKnofliku::Tah);
    EXPECT_EQ(deska.stavPomocneho(49), StavKnofliku::Tah);
}

TEST(TrebleBoard, NamesAreSpelledInTheKeyAndFingersStayUntilTheCaptionsAreEmptied) {
    TrebleBoard deska{nastrojZvonika()};
    deska.nastavPopis(7, QStringLiteral("3\r\n"));
    deska.nastavPopisPomocneho(7, QStringLiteral("5\r\n4\r\n"));
    int prepnuti = 0;
    QObject::connect(&deska, &TrebleBoard::nazvyZmeneny, &deska, [&] { ++prepnuti; });
    deska.nastavNazvy(true, QStringLiteral("F dur"));
    EXPECT_EQ(prepnuti, 1) << "the menu shows it";
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\nb,"));
    EXPECT_EQ(deska.popisPomocneho(7), QStringLiteral("5\r\n4\r\nb,"));
    deska.nastavNazvy(true, QStringLiteral("G dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\nais,"));
    deska.vyprazdniPopisy();
    EXPECT_EQ(deska.popis(7), QStringLiteral("ais,"));
    EXPECT_EQ(deska.popisPomocneho(7), QStringLiteral("ais,"));
    deska.nastavPopis(7, QStringLiteral("3\r\nais,"));
    deska.nastavNazvy(false, QStringLiteral("F dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\n"));
    EXPECT_EQ(deska.popisPomocneho(7), QString());
    deska.vyprazdniPopisy();
    EXPECT_EQ(deska.popis(7), QString());
}

TEST(TrebleBoard, ReleasingTheKeysResetsOnlyTheMarksOfAccidentals) {
    TrebleBoard deska{nastrojZvonika()};
    for (const int n : {2, 3}) {
        deska.nastavZnacku(n, true);
        deska.nastavTonKlavesy(n, QStringLiteral("x"));
    }
    deska.uvolniKlavesy();
    EXPECT_TRUE(deska.oznacen(2));
    EXPECT_FALSE(deska.oznacen(3));
    EXPECT_EQ(deska.barvaKlavesy(2), BarvaKlavesy::CaptionText);
    EXPECT_EQ(deska.barvaKlavesy(3), BarvaKlavesy::WindowText);
    EXPECT_EQ(deska.tonKlavesy(2), QString());
}

TEST(BassBoard, ReleaseFreesEveryBassAndTellsOnlyOfThose) {
    BassBoard basy{nastrojZvonika()};
    basy.klik(1);
    basy.ukazHmat(2, StavBasu::Tlak);
    int zmen = 0;
    QObject::connect(&basy, &BassBoard::basZmenen, &basy, [&](int bas) { zmen += bas <= 2 ? 1 : 1000; });
    basy.uvolniBasy();
    EXPECT_EQ(zmen, 2);
    for (int bas = 1; bas <= basy.nastroj().pocetBasu(); ++bas) {
        EXPECT_FALSE(basy.oznacen(bas));
        EXPECT_EQ(basy.stav(bas), StavBasu::Volny);
    }
}

} // namespace
} // namespace zvonika
