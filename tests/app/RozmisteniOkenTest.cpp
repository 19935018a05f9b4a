#include "app/RozmisteniOken.h"

#include <gtest/gtest.h>

using namespace zvonika;

TEST(RozmisteniOken, BothWindowsStandOnTheScreenWithoutCoveringEachOther) {
    const std::pair<QRect, int> plochy[] = {
        // and the least width that keeps the board large
        {{0, 0, 1366, 768}, 940}, {{0, 28, 1366, 740}, 0}, {{0, 0, 1920, 1080}, 1300},
        {{0, 0, 1280, 1024}, 0},  {{0, 0, 3840, 2160}, 0}, {{100, 50, 1024, 700}, 0},
        {{0, 0, 1080, 1920}, 0},  {{0, 0, 683, 384}, 0},
    };
    for (const auto& [plocha, nejmensiSirka] : plochy) {
        SCOPED_TRACE(plocha.width());
        const RozmisteniOken okna = rozmistiOkna(plocha);
        EXPECT_TRUE(plocha.contains(okna.hlavni));
        EXPECT_TRUE(plocha.contains(okna.tabulka));
        EXPECT_FALSE(okna.hlavni.intersects(okna.tabulka));
        EXPECT_GE(okna.tabulka.height(), nejmensiVyskaTabulky);
        EXPECT_GE(okna.tabulka.width(), nejmensiSirkaTabulky);
        EXPECT_GE(okna.hlavni.width(), nejmensiSirka);
    }
}
