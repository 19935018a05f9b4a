#include "app/RozmisteniOken.h"

#include <gtest/gtest.h>

using namespace zvonika;

TEST(RozmisteniOken, BothWindowsStandOnTheScreenWithoutCoveringEachOther) {
    const QRect plochy[] = {{0, 0, 1366, 768},  {0, 28, 1366, 740},   {0, 0, 1920, 1080}, {0, 0, 1280, 1024},
                            {0, 0, 3840, 2160}, {100, 50, 1024, 700}, {0, 0, 1080, 1920}, {0, 0, 683, 384}};
    for (const QRect& plocha : plochy) {
        const RozmisteniOken okna = rozmistiOkna(plocha);
        EXPECT_TRUE(plocha.contains(okna.hlavni)) << plocha.width();
        EXPECT_TRUE(plocha.contains(okna.tabulka)) << plocha.width();
        EXPECT_FALSE(okna.hlavni.intersects(okna.tabulka)) << plocha.width();
        EXPECT_TRUE(okna.tabulka.height() >= nejmensiVyskaTabulky &&
                    okna.tabulka.width() >= nejmensiSirkaTabulky)
            << plocha.width();
    }
}

TEST(RozmisteniOken, TheCommonScreenKeepsTheBoardLarge) {
    EXPECT_GE(rozmistiOkna({0, 0, 1366, 768}).hlavni.width(), 940);
    EXPECT_GE(rozmistiOkna({0, 0, 1920, 1080}).hlavni.width(), 1300);
}
