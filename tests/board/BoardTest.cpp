#include "board/BassBoard.h"
#include "board/TrebleBoard.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(TrebleBoard, StartsFreeWithKeyTwentyEightInWindowBackground) {
    const TrebleBoard deska;
    for (int n = 1; n <= pocetKnofliku; ++n) {
        EXPECT_FALSE(deska.oznacen(n));
        EXPECT_EQ(deska.stav(n), StavKnofliku::Volny);
        const auto barva = n == 28       ? BarvaKlavesy::WindowBackground
                           : jePulton(n) ? BarvaKlavesy::WindowText
                                         : BarvaKlavesy::CaptionText;
        EXPECT_EQ(deska.barvaKlavesy(n), barva) << n;
    }
}

TEST(TrebleBoard, ReleasedKeyTwentyEightIsANaturalLikeTheOthers) {
    TrebleBoard deska;
    deska.nastavZnacku(28, true);
    EXPECT_EQ(deska.barvaKlavesy(28), BarvaKlavesy::Cervena);
    deska.nastavZnacku(28, false);
    EXPECT_EQ(deska.barvaKlavesy(28), BarvaKlavesy::CaptionText);
}

TEST(TrebleBoard, ButtonsWithoutATwinShowOnlyTheirMainPicture) {
    TrebleBoard deska;
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

TEST(TrebleBoard, AShownGripLeavesMarksAlone) {
    TrebleBoard deska;
    deska.nastavZnacku(5, true);
    deska.ukazHmat(5, StavKnofliku::Tlak);
    EXPECT_TRUE(deska.oznacen(5));
    deska.ukazHmat(6, StavKnofliku::Tlak);
    EXPECT_FALSE(deska.oznacen(6));
}

TEST(TrebleBoard, NamesAreSpelledInTheKeyOnBothButtons) {
    TrebleBoard deska;
    deska.nastavNazvy(true, QStringLiteral("F dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("b,"));
    EXPECT_EQ(deska.popisPomocneho(7), QStringLiteral("b,"));
    deska.nastavNazvy(true, QStringLiteral("D dur"));
    EXPECT_EQ(deska.popis(15), QStringLiteral("fis1,"));
    deska.nastavNazvy(false, QStringLiteral("D dur"));
    EXPECT_EQ(deska.popis(15), QString());
    EXPECT_EQ(deska.popisPomocneho(7), QString());
}

TEST(TrebleBoard, FingersStayAboveANameThatFollowsTheKey) {
    TrebleBoard deska;
    deska.nastavNazvy(true, QStringLiteral("G dur"));
    deska.nastavPopis(7, QStringLiteral("3\r\n") + deska.popis(7));
    deska.nastavNazvy(true, QStringLiteral("F dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\nb,"));
}

TEST(TrebleBoard, FingersStayWhenTheNamesAreSwitched) {
    TrebleBoard deska;
    deska.nastavPopis(7, QStringLiteral("3\r\n"));
    deska.nastavPopisPomocneho(7, QStringLiteral("5\r\n4\r\n"));
    deska.nastavNazvy(true, QStringLiteral("F dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\nb,"));
    EXPECT_EQ(deska.popisPomocneho(7), QStringLiteral("5\r\n4\r\nb,"));
    deska.nastavNazvy(false, QStringLiteral("F dur"));
    EXPECT_EQ(deska.popis(7), QStringLiteral("3\r\n"));
    EXPECT_EQ(deska.popisPomocneho(7), QStringLiteral("5\r\n4\r\n"));
}

TEST(TrebleBoard, EmptyingTheCaptionsRestoresTheNames) {
    TrebleBoard deska;
    deska.nastavPopis(2, QStringLiteral("1\r\n"));
    deska.vyprazdniPopisy();
    EXPECT_EQ(deska.popis(2), QString());

    deska.nastavNazvy(true, QStringLiteral("C dur"));
    deska.nastavPopis(2, QStringLiteral("1\r\nf,"));
    deska.nastavPopisPomocneho(2, QStringLiteral("4\r\nf,"));
    deska.vyprazdniPopisy();
    EXPECT_EQ(deska.popis(2), QStringLiteral("f,"));
    EXPECT_EQ(deska.popisPomocneho(2), QStringLiteral("f,"));
}

TEST(TrebleBoard, ReleasingTheKeysResetsOnlyTheMarksOfAccidentals) {
    TrebleBoard deska;
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

TEST(TrebleBoard, AChangeIsAnnouncedOnceAndAReleaseOfAFreeBoardNotAtAll) {
    TrebleBoard deska;
    deska.uvolniKlavesy(); // gives key 28 its lasting colour
    int zmen = 0;
    const auto pocitej = [&](int) { ++zmen; };
    QObject::connect(&deska, &TrebleBoard::knoflikZmenen, &deska, pocitej);
    QObject::connect(&deska, &TrebleBoard::klavesaZmenena, &deska, pocitej);
    deska.uvolniDiskant();
    deska.uvolniKlavesy();
    EXPECT_EQ(zmen, 0);
    deska.nastavZnacku(9, true);
    deska.nastavZnacku(9, true);
    EXPECT_EQ(zmen, 2); // the button and its key
}

TEST(TrebleBoard, CoversAndNumbersAreSwitched) {
    TrebleBoard deska;
    int zabran = 0;
    int cislovani = 0;
    QObject::connect(&deska, &TrebleBoard::zabranyZmeneny, &deska, [&] { ++zabran; });
    QObject::connect(&deska, &TrebleBoard::cislovaniZmeneno, &deska, [&] { ++cislovani; });
    deska.nastavZabranu(5, true);
    EXPECT_TRUE(deska.zakryta(5));
    EXPECT_FALSE(deska.zakryta(1));
    deska.nastavCislovani(true);
    deska.nastavObraceneCislovani(true);
    deska.nastavObraceneCislovani(true);
    EXPECT_TRUE(deska.cislovani() && deska.obraceneCislovani());
    EXPECT_EQ(zabran, 1);
    EXPECT_EQ(cislovani, 2);
}

TEST(BassBoard, AClickTogglesMarkAndPicture) {
    BassBoard basy;
    basy.klik(30);
    EXPECT_TRUE(basy.oznacen(30));
    EXPECT_EQ(basy.stav(30), StavBasu::Cerveny);
    EXPECT_FALSE(basy.oznacen(31));
    basy.klik(30);
    EXPECT_FALSE(basy.oznacen(30));
    EXPECT_EQ(basy.stav(30), StavBasu::Volny);
}

TEST(BassBoard, AMarkSurvivesTheShownGrip) {
    BassBoard basy;
    basy.klik(120);
    basy.ukazHmat(120, StavBasu::Tah);
    EXPECT_TRUE(basy.oznacen(120));
}

TEST(BassBoard, ReleaseFreesEveryBassAndTellsOnlyOfThose) {
    BassBoard basy;
    basy.klik(1);
    basy.ukazHmat(2, StavBasu::Tlak);
    int zmen = 0;
    QObject::connect(&basy, &BassBoard::basZmenen, &basy, [&](int bas) { zmen += bas <= 2 ? 1 : 1000; });
    basy.uvolniBasy();
    EXPECT_EQ(zmen, 2);
    for (int bas = 1; bas <= pocetBasu; ++bas) {
        EXPECT_FALSE(basy.oznacen(bas));
        EXPECT_EQ(basy.stav(bas), StavBasu::Volny);
    }
}

TEST(BassBoard, ThreeBassesCarryTactileMarks) {
    for (int bas = 1; bas <= pocetBasu; ++bas) {
        const auto obraz = bas == 30                ? ObrazBasu::C
                           : bas == 26 || bas == 34 ? ObrazBasu::Mriz
                                                    : ObrazBasu::Bezny;
        EXPECT_EQ(obrazBasu(bas), obraz) << bas;
    }
}

} // namespace
} // namespace zvonika
