#include "aids/VolbyHmatniku.h"

#include "board/TrebleBoard.h"
#include "song/CommandStates.h"
#include "tests/support/MemorySettings.h"
#include "theory/Tonina.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

class VolbyHmatnikuTest : public ::testing::Test {
protected:
    QString ulozeno(const char* sekce) const { return nastaveni.getOr(sekce, "Index", "nic"); }

    TrebleBoard diskant{nastrojZvonika()};
    Tonina tonina;
    testing::MemorySettings nastaveni;
    CommandStates stavy;
    VolbyHmatniku volby{diskant, tonina, nastaveni, stavy};
};

TEST_F(VolbyHmatnikuTest, NamesAreWrittenInTheKeyAndTakenAwayWithEverythingElse) {
    tonina.nastavStupnici(Key("F dur"));
    diskant.nastavPopis(2, "3\r\n");
    volby.mnu2Rady();
    EXPECT_EQ(diskant.popis(7), "b,");
    EXPECT_EQ(diskant.popis(2), "3\r\nf,");
    EXPECT_EQ(ulozeno("PopisKnof"), "1");
    volby.mnu2Rady();
    for (const int n : {2, 7})
        EXPECT_EQ(diskant.popis(n) + diskant.popisPomocneho(n), "") << n;
    EXPECT_EQ(ulozeno("PopisKnof"), "0");
    EXPECT_EQ(ulozeno("Cislovani"), "nic");
}

TEST_F(VolbyHmatnikuTest, TurningOverIsOfferedOnceAndNotRemembered) {
    volby.mnuOtocitHmatnik();
    EXPECT_TRUE(diskant.otoceno());
    stavy.povol("mnuOtocitHmatnik");
    EXPECT_FALSE(stavy.povolen("mnuOtocitHmatnik"));
    EXPECT_FALSE(diskant.cislovani()) << "the word is shown, the numbers are not";
    EXPECT_EQ(ulozeno("Cislovani"), "nic");
}

} // namespace
} // namespace zvonika
