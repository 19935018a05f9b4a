#include "board/TrebleLayout.h"

#include <gtest/gtest.h>
#include <ostream>
#include <set>
#include <utility>

namespace zvonika {

void PrintTo(const Poloha& poloha, std::ostream* out) {
    *out << '(' << poloha.left << ", " << poloha.top << ')';
}

namespace {

TEST(TrebleLayout, ButtonsStandInTheirRows) {
    const struct {
        int n, rada;
        Poloha poloha;
    } tabulka[] = {
        {1, 2, {6000, 9720}}, {2, 4, {4800, 9720}},  {3, 3, {5400, 9360}},
        {4, 2, {6000, 9120}}, {47, 4, {4800, 720}},  {48, 3, {5400, 360}},
        {49, 2, {6000, 120}}, {14, 4, {4800, 7320}}, {24, 3, {5400, 5160}},
    };
    for (const auto& [n, ocekavanaRada, poloha] : tabulka) {
        EXPECT_EQ(rada(n), ocekavanaRada) << n;
        EXPECT_EQ(polohaKnofliku(n), poloha) << n;
    }
}

TEST(TrebleLayout, OuterRowsRepeatRowsAAndB) {
    const struct {
        int n, rada;
        Poloha poloha;
    } tabulka[] = {
        {4, 5, {4200, 9360}}, {49, 5, {4200, 360}}, {7, 5, {4200, 8760}},
        {2, 1, {6600, 9360}}, {47, 1, {6600, 360}}, {5, 1, {6600, 8760}},
    };
    for (const auto& [n, ocekavanaRada, poloha] : tabulka) {
        EXPECT_EQ(radaPomocneho(n), ocekavanaRada) << n;
        EXPECT_EQ(polohaPomocneho(n), poloha) << n;
    }
}

TEST(TrebleLayout, TurnedOverEveryRowRunsTheOtherWay) {
    const struct {
        int n;
        Poloha hlavni, pomocny;
    } tabulka[] = {
        {49, {6000, 9720}, {4200, 9360}},
        {46, {6000, 9120}, {4200, 8760}},
        {4, {6000, 720}, {4200, 360}},
        {1, {6000, 120}, {}},
        {47, {4800, 9120}, {6600, 9360}},
        {44, {4800, 8520}, {6600, 8760}},
        {2, {4800, 120}, {6600, 360}},
        {48, {5400, 9360}, {}},
        {3, {5400, 360}, {}},
    };
    for (const auto& [n, hlavni, pomocny] : tabulka) {
        EXPECT_EQ(polohaKnofliku(n, true), hlavni) << n;
        EXPECT_EQ(maPomocny(n) ? polohaPomocneho(n, true) : Poloha(), pomocny) << n;
    }
    for (int n = 4; n <= pocetKnofliku; ++n) // row by row, without gaps
        EXPECT_EQ(polohaKnofliku(n, true).top, polohaKnofliku(n - 3, true).top + 600) << n;
}

TEST(TrebleLayout, ThirtyTwoButtonsHaveATwin) {
    int pocet = 0;
    for (int n = 1; n <= pocetKnofliku; ++n) {
        const bool dvojce = n != 1 && n % 3 != 0;
        EXPECT_EQ(maPomocny(n), dvojce) << n;
        EXPECT_EQ(radaPomocneho(n) != 0, dvojce) << n;
        pocet += dvojce;
    }
    EXPECT_EQ(pocet, 32);
}

TEST(TrebleLayout, NoTwoButtonsShareAPlace) {
    for (const bool otoceno : {false, true}) {
        std::set<std::pair<int, int>> mista;
        const auto zaber = [&](Poloha p) {
            EXPECT_TRUE(mista.insert({p.left, p.top}).second) << p.left << ' ' << p.top;
        };
        for (int n = 1; n <= pocetKnofliku; ++n) {
            zaber(polohaKnofliku(n, otoceno));
            if (maPomocny(n)) zaber(polohaPomocneho(n, otoceno));
        }
        for (int bas = 1; bas <= pocetBasu; ++bas)
            zaber(polohaBasu(bas));
    }
}

TEST(TrebleLayout, RowCoverFiveIsTheLeftmost) {
    for (int r = 1; r <= 5; ++r)
        EXPECT_EQ(levyOkrajRady(r), 6600 - (r - 1) * 600);
}

TEST(TrebleLayout, AccidentalsAreThoseOfAScaleFromE) {
    const std::set<int> tmave{3, 5, 7, 10, 12, 15, 17, 19, 22, 24, 27, 29, 31, 34, 36, 39, 41, 43, 46, 48};
    for (int n = 1; n <= pocetKnofliku; ++n)
        EXPECT_EQ(jePulton(n), tmave.contains(n)) << n;
}

TEST(TrebleLayout, NumberLabelsOfBothLayouts) {
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
    for (const auto& radek : tabulka) {
        EXPECT_EQ(polohaCisla(radek.index, false), radek.bezne) << radek.index;
        EXPECT_EQ(polohaCisla(radek.index, true), radek.obracene) << radek.index;
        EXPECT_EQ(textCisla(radek.index), radek.text) << radek.index;
    }
}

TEST(TrebleLayout, PianoRunsFromTheFirstKeyToTheLast) {
    EXPECT_EQ(polohaKlavesy(1), (Poloha{9720, 9840}));
    EXPECT_EQ(polohaKlavesy(49), (Poloha{9720, 3120}));
    for (int n = 2; n <= pocetKnofliku; ++n)
        EXPECT_LT(polohaKlavesy(n).top, polohaKlavesy(n - 1).top + (jePulton(n - 1) ? 0 : 1)) << n;
}

TEST(TrebleLayout, KeysAndTheirLabelsHaveTheirKindsSize) {
    const struct {
        int n, sirka, vyska, leftTonu;
    } tabulka[] = {{1, 1575, 255, 11400}, {3, 975, 200, 9240}, {28, 1575, 255, 11400}, {48, 975, 200, 9240}};
    for (const auto& [n, sirka, vyska, leftTonu] : tabulka) {
        EXPECT_EQ(sirkaKlavesy(n), sirka);
        EXPECT_EQ(vyskaKlavesy(n), vyska);
        EXPECT_EQ(polohaTonuKlavesy(n), (Poloha{leftTonu, polohaKlavesy(n).top})) << n;
    }
}

TEST(TrebleLayout, AnAccidentalKeyStraddlesTheBorderOfItsNaturals) {
    for (int n = 2; n < pocetKnofliku; ++n) {
        if (!jePulton(n)) continue;
        const int hranice = polohaKlavesy(n - 1).top; // upper edge of the natural below
        EXPECT_LT(polohaKlavesy(n).top, hranice) << n;
        EXPECT_GT(polohaKlavesy(n).top + vyskaKlavesy(n), hranice) << n;
        EXPECT_GT(polohaKlavesy(n).top, polohaKlavesy(n + 1).top) << n;
    }
}

TEST(TrebleLayout, BassesRunUpwardInSixRuns) {
    const struct {
        int bas, rada;
        Poloha poloha;
    } tabulka[] = {
        {20, 0, {120, 1260}},   {1, 0, {120, 6960}},    {40, 1, {720, 1410}},
        {60, 2, {1320, 1560}},  {80, 3, {1920, 1710}},  {100, 4, {2520, 1860}},
        {120, 5, {3120, 2010}}, {101, 5, {3120, 7710}}, {30, 1, {720, 4410}},
    };
    for (const auto& [bas, ocekavanaRada, poloha] : tabulka) {
        EXPECT_EQ(radaBasu(bas), ocekavanaRada) << bas;
        EXPECT_EQ(polohaBasu(bas), poloha) << bas;
    }
}

} // namespace
} // namespace zvonika
