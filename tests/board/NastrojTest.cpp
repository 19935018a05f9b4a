#include "board/Nastroj.h"

#include <gtest/gtest.h>
#include <ostream>
#include <set>

namespace zvonika {

void PrintTo(const Poloha& poloha, std::ostream* out) {
    *out << '(' << poloha.left << ", " << poloha.top << ')';
}

namespace {

const Nastroj nastroj = nastrojZvonika();

TEST(Nastroj, ButtonsStandInTheirRows) {
    const struct {
        int n;
        Nastroj::Misto hlavni, pomocny;
    } tabulka[] = {
        {1, {2, {6000, 9720}, {6000, 120}}, {}},
        {2, {4, {4800, 9720}, {4800, 120}}, {1, {6600, 9360}, {6600, 360}}},
        {3, {3, {5400, 9360}, {5400, 360}}, {}},
        {4, {2, {6000, 9120}, {6000, 720}}, {5, {4200, 9360}, {4200, 360}}},
        {46, {2, {6000, 720}, {6000, 9120}}, {5, {4200, 960}, {4200, 8760}}},
        {47, {4, {4800, 720}, {4800, 9120}}, {1, {6600, 360}, {6600, 9360}}},
        {48, {3, {5400, 360}, {5400, 9360}}, {}},
        {49, {2, {6000, 120}, {6000, 9720}}, {5, {4200, 360}, {4200, 9360}}},
    };
    for (const auto& [n, hlavni, pomocny] : tabulka) {
        const auto porovnej = [n = n](const Nastroj::Misto& misto, const Nastroj::Misto& cekane) {
            EXPECT_EQ(misto.rada, cekane.rada) << n;
            EXPECT_EQ(misto.kde(false), cekane.poloha) << n;
            EXPECT_EQ(misto.kde(true), cekane.otocena) << n;
        };
        porovnej(nastroj.knoflik(n).hlavni, hlavni);
        porovnej(nastroj.knoflik(n).pomocny.value_or(Nastroj::Misto()), pomocny);
    }
}

TEST(Nastroj, ThirtyTwoButtonsHaveATwinAndRowsHaveNoGaps) {
    ASSERT_EQ(nastroj.pocetKnofliku(), 49);
    for (int n = 1; n <= 49; ++n) {
        EXPECT_EQ(nastroj.knoflik(n).pomocny.has_value(), n != 1 && n % 3 != 0) << n;
        if (n <= 3) continue;
        const auto &misto = nastroj.knoflik(n).hlavni, &pod = nastroj.knoflik(n - 3).hlavni;
        EXPECT_EQ(misto.poloha.top, pod.poloha.top - 600) << n;
        EXPECT_EQ(misto.otocena.top, pod.otocena.top + 600) << n;
    }
}

TEST(Nastroj, AccidentalsAreThoseOfAScaleFromE) {
    const std::set<int> tmave{3, 5, 7, 10, 12, 15, 17, 19, 22, 24, 27, 29, 31, 34, 36, 39, 41, 43, 46, 48};
    for (int n = 1; n <= 49; ++n)
        EXPECT_EQ(nastroj.knoflik(n).pulton, tmave.contains(n)) << n;
}

TEST(Nastroj, NumberLabelsOfBothLayouts) {
    const struct {
        int index;
        Poloha bezne, obracene;
        int text;
    } tabulka[] = {
        {0, {7200, 9480}, {7200, 7440}, 1},  {7, {7200, 5280}, {7200, 3240}, 8},
        {8, {7200, 4680}, {7200, 2640}, 8},  {12, {7200, 2280}, {7200, 240}, 4},
        {13, {7200, 1680}, {7200, 6840}, 3}, {15, {7200, 480}, {7200, 5640}, 1},
        {16, {3840, 9480}, {3840, 5040}, 1}, {24, {3840, 4680}, {3840, 240}, 8},
        {25, {3840, 4080}, {3840, 4080}, 7}, {31, {3840, 480}, {3840, 480}, 1},
    };
    EXPECT_EQ(nastroj.pocetCisel(), 32);
    for (const auto& [index, bezne, obracene, text] : tabulka) {
        EXPECT_EQ(nastroj.cislo(index).poloha, bezne) << index;
        EXPECT_EQ(nastroj.cislo(index).obracena, obracene) << index;
        EXPECT_EQ(nastroj.cislo(index).text, text) << index;
    }
}

TEST(Nastroj, PianoKeysHaveTheirKindsSizeAndAccidentalsStraddleTheirNaturals) {
    EXPECT_EQ(nastroj.klavesa(1).poloha, (Poloha{9720, 9840}));
    EXPECT_EQ(nastroj.klavesa(49).poloha, (Poloha{9720, 3120}));
    for (int n = 1; n <= 49; ++n) {
        const bool pulton = nastroj.knoflik(n).pulton;
        const auto& [poloha, sirka, vyska, ton] = nastroj.klavesa(n);
        EXPECT_EQ(sirka, pulton ? 975 : 1575) << n;
        EXPECT_EQ(vyska, pulton ? 200 : 255) << n;
        EXPECT_EQ(ton, (Poloha{pulton ? 9240 : 11400, poloha.top})) << n;
        if (!pulton) continue;
        const int hranice = nastroj.klavesa(n - 1).poloha.top; // upper edge of the natural below
        EXPECT_LT(poloha.top, hranice) << n;
        EXPECT_GT(poloha.top + vyska, hranice) << n;
        EXPECT_GT(poloha.top, nastroj.klavesa(n + 1).poloha.top) << n;
    }
}

TEST(Nastroj, BassesRunUpwardInSixRunsAndThreeCarryTactileMarks) {
    const struct {
        int bas, rada;
        Poloha poloha;
    } tabulka[] = {
        {20, 0, {120, 1260}},   {1, 0, {120, 6960}},    {40, 1, {720, 1410}},
        {60, 2, {1320, 1560}},  {80, 3, {1920, 1710}},  {100, 4, {2520, 1860}},
        {120, 5, {3120, 2010}}, {101, 5, {3120, 7710}}, {30, 1, {720, 4410}},
    };
    for (const auto& [bas, rada, poloha] : tabulka) {
        EXPECT_EQ(nastroj.bas(bas).rada, rada) << bas;
        EXPECT_EQ(nastroj.bas(bas).poloha, poloha) << bas;
    }
    ASSERT_EQ(nastroj.pocetBasu(), 120);
    for (int bas = 1; bas <= 120; ++bas)
        EXPECT_EQ(nastroj.bas(bas).obraz, bas == 30                ? ObrazBasu::C
                                          : bas == 26 || bas == 34 ? ObrazBasu::Mriz
                                                                   : ObrazBasu::Bezny)
            << bas;
}

} // namespace
} // namespace zvonika
