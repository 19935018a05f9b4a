#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/KresleniTonu.h"
#include "tests/theory/Vypis.h"
#include "theory/clsNotyZapis.h"

#include <QObject>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace zvonika {
namespace {

using testing::kreslenaNota;
using testing::nazev;
using testing::ScriptedDialogs;
using testing::stupnice;

// Staff units of some notes.
constexpr int e = 120, f = 180, c1 = 420, f1 = 600, g1 = 660, a1 = 720, h1 = 780, e4 = 1800, f4 = 1860;

class NotyZapis : public ::testing::Test {
protected:
    explicit NotyZapis(const char* tonina = "C dur") {
        zapis.NastavStupnici(stupnice(tonina));
        QObject::connect(&osnova, &NotovaOsnova::changed, [this] { ++zmen; });
    }

    std::optional<int> pridej(int jednotky, Znamenko znamenko = Znamenko::Zadne) {
        const auto slot = zapis.pridejNotu(jednotky);
        if (slot && znamenko != Znamenko::Zadne) {
            EXPECT_TRUE(zapis.nastavZnamenko(*slot, znamenko));
        }
        return slot;
    }
    std::optional<int> pridejTon(int ton, const Key& tonina) {
        return zapis.zakresliNotu(kreslenaNota(ton, tonina, dialogs));
    }
    std::vector<int> tony() const {
        std::vector<int> vysledek;
        for (const auto& nota : osnova.noty())
            vysledek.push_back(nota ? nota->ton.hodnota() : 0);
        return vysledek;
    }
    Znamenko znamenko(int slot) const { return osnova.nota(slot)->poloha.znamenko; }

    ScriptedDialogs dialogs; ///< nothing is ever asked here
    NotovaOsnova osnova;
    clsNotyZapis zapis{osnova, dialogs};
    int zmen = 0;
};

TEST_F(NotyZapis, AClickFillsTheNextFreeSlot) {
    EXPECT_EQ(zapis.pridejNotu(c1), 0);
    EXPECT_EQ(zapis.pridejNotu(e + 25), 1);
    EXPECT_EQ(osnova.vybranySlot(), 1);
    EXPECT_EQ(osnova.nota(1)->poloha, (PolohaNoty{Znamenko::Zadne, e}));
    zapis.odeberNotu(0);
    EXPECT_EQ(zapis.pridejNotu(e4), 0);
    EXPECT_EQ(tony(), (std::vector{49, 1, 0, 0, 0}));
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("e4,"));
    EXPECT_EQ(zapis.ZjistiNotu(4), ToneName());
    osnova.vyberSlot(0);
    zapis.odeberNotu(1);
    EXPECT_EQ(osnova.vybranySlot(), 0);
    osnova.vyberSlot(3);
    EXPECT_EQ(osnova.vybranySlot(), std::nullopt) << "only a note that is there can be selected";
}

TEST_F(NotyZapis, AClickIsRefusedOutsideTheBoardTwiceAndWhenFull) {
    for (int jednotky : {60, 0, -60, f4})
        EXPECT_FALSE(zapis.pridejNotu(jednotky)) << jednotky;
    EXPECT_EQ(zmen, 0);
    for (int slot = 0; slot < 5; ++slot)
        EXPECT_EQ(zapis.pridejNotu(f1 + 60 * slot), slot);
    EXPECT_FALSE(zapis.pridejNotu(c1));
    zapis.odeberNotu(2);
    EXPECT_FALSE(zapis.pridejNotu(f1));
    EXPECT_EQ(zapis.pridejNotu(c1), 2);
}

TEST_F(NotyZapis, ANoteMovesWithItsSign) {
    pridej(f1, Znamenko::Krizek);
    pridej(c1);
    EXPECT_TRUE(zapis.posunNotu(0, g1 + 10));
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("gis1,"));
    EXPECT_FALSE(zapis.posunNotu(0, e4));
    EXPECT_FALSE(zapis.posunNotu(1, 0));
    EXPECT_FALSE(zapis.posunNotu(2, c1)) << "an empty slot";
    EXPECT_FALSE(zapis.posunNotu(0, 360)) << "his is the c1 of slot 1";
    EXPECT_EQ(tony(), (std::vector{17, 9, 0, 0, 0}));
}

TEST_F(NotyZapis, ASignMakesAnotherTone) {
    pridej(a1);
    pridej(h1);
    for (const auto& [znamenko, ton, cteny] : {std::tuple{Znamenko::Krizek, 19, "ais1,"},
                                               {Znamenko::Becko, 17, "as1,"},
                                               {Znamenko::Odrazka, 18, "a1,"},
                                               {Znamenko::Zadne, 18, "a1,"}}) {
        EXPECT_TRUE(zapis.nastavZnamenko(0, znamenko));
        EXPECT_EQ(osnova.nota(0)->ton.hodnota(), ton);
        EXPECT_EQ(zapis.ctenyNazev(0), nazev(cteny));
    }
    zapis.nastavZnamenko(0, Znamenko::Krizek);
    EXPECT_FALSE(zapis.nastavZnamenko(1, Znamenko::Becko)) << "b1 and ais1 are one button";
    EXPECT_FALSE(zapis.nastavZnamenko(4, Znamenko::Krizek)) << "an empty slot";
    pridej(e);
    EXPECT_FALSE(zapis.nastavZnamenko(2, Znamenko::Becko)) << "es lies below the board";
    EXPECT_EQ(znamenko(2), Znamenko::Zadne);
}

TEST_F(NotyZapis, TheSignatureGovernsPlainNotes) {
    zapis.NastavStupnici(stupnice("G dur"));
    pridej(f1);
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("fis1,"));
    EXPECT_EQ(osnova.nota(0)->ton.hodnota(), 15);
    EXPECT_FALSE(zapis.CervenaNota0());
    zapis.nastavZnamenko(0, Znamenko::Odrazka);
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("f1,"));
    EXPECT_TRUE(zapis.CervenaNota0());
    EXPECT_TRUE(osnova.odrazka(0));
    EXPECT_FALSE(osnova.odrazka(1));
    EXPECT_TRUE(zapis.posunNotu(0, g1));
    EXPECT_EQ(znamenko(0), Znamenko::Zadne) << "nothing to cancel on g";
    EXPECT_FALSE(osnova.odrazka(0));
}

TEST_F(NotyZapis, RecordsTheSpellingOfTheKey) {
    zapis.NastavStupnici(stupnice("Cis dur"));
    pridej(540);
    EXPECT_EQ(zapis.ctenyNazev(0), nazev("eis1,"));
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("f1,"));
    osnova.odeberNoty();
    zapis.NastavStupnici(stupnice("F dur"));
    pridej(c1, Znamenko::Krizek);
    EXPECT_EQ(zapis.ctenyNazev(0), nazev("cis1,"));
    EXPECT_EQ(zapis.ZjistiNotu(0), nazev("des1,"));
    osnova.polozNotu(1, {{Znamenko::Zadne, c1}, CisloTonu(99)});
    EXPECT_EQ(zapis.ZjistiNotu(1), ToneName());
}

TEST_F(NotyZapis, MarksEverySlotOutOfScaleRed) {
    for (int ton : {13, 14, 15, 16, 17})
        pridejTon(ton, stupnice("C dur"));
    EXPECT_FALSE(zapis.CervenaNota0() || zapis.CervenaNota1() || zapis.CervenaNota3());
    EXPECT_TRUE(zapis.CervenaNota2() && zapis.CervenaNota4());
    zapis.odeberTon(CisloTonu(15));
    EXPECT_FALSE(zapis.CervenaNota2());
}

TEST_F(NotyZapis, BoardTonesComeAndGo) {
    const Key des = stupnice("Des dur");
    zapis.NastavStupnici(des);
    EXPECT_EQ(pridejTon(10, des), 0);
    EXPECT_EQ(osnova.nota(0)->poloha, (PolohaNoty{Znamenko::Becko, 480}));
    EXPECT_EQ(pridejTon(11, des), 1);
    EXPECT_EQ(znamenko(1), Znamenko::Odrazka) << "a plain d would read des";
    EXPECT_EQ(pridejTon(10, des), 0) << "there already";
    zapis.odeberTon(CisloTonu(10));
    zapis.odeberTon(CisloTonu(40));
    EXPECT_EQ(tony(), (std::vector{0, 11, 0, 0, 0}));
    for (int ton : {20, 21, 22, 23})
        pridejTon(ton, des);
    EXPECT_FALSE(pridejTon(24, des));
}

TEST_F(NotyZapis, EveryToneOfEveryKeyReadsAsItSounds) {
    for (const char* tonina : {"", "G dur", "A dur", "Fis dur", "Cis dur", "F dur", "As dur", "Ces dur"}) {
        zapis.NastavStupnici(stupnice(tonina));
        for (int n = 1; n <= 49; ++n) {
            ASSERT_EQ(pridejTon(n, stupnice(tonina)), 0);
            const bool vyjimka = stupnice(tonina) == stupnice("F dur") && n == 49;
            EXPECT_EQ(cisloTonu(zapis.ctenyNazev(0)).hodnota(), vyjimka ? 1 : n) << tonina;
            zapis.odeberTon(CisloTonu(n));
        }
    }
}

TEST_F(NotyZapis, AnotherKeyKeepsTheTones) {
    pridej(f1);
    pridej(h1, Znamenko::Becko);
    pridej(g1);
    const auto predtim = tony();
    zmen = 0;
    zapis.NastavStupnici(stupnice("D dur"));
    EXPECT_EQ(zmen, 1);
    EXPECT_EQ(tony(), predtim);
    EXPECT_EQ(osnova.nota(0)->poloha, (PolohaNoty{Znamenko::Odrazka, f1}));
    EXPECT_EQ(osnova.nota(1)->poloha, (PolohaNoty{Znamenko::Krizek, a1}));
    EXPECT_EQ(osnova.nota(2)->poloha, (PolohaNoty{Znamenko::Zadne, g1}));
    EXPECT_EQ(osnova.predznamenani().pocet(), 2);
    zapis.NastavStupnici(stupnice("D dur"));
    EXPECT_EQ(zmen, 1) << "nothing new";
}

TEST_F(NotyZapis, ReleasingTakesNotesOrSignsAndKeepsTheKey) {
    zapis.NastavStupnici(stupnice("G dur"));
    pridej(f1, Znamenko::Odrazka);
    pridej(g1, Znamenko::Becko);
    pridej(a1, Znamenko::Krizek);
    const auto predtim = tony();
    osnova.odeberOdrazky();
    EXPECT_EQ(tony(), (std::vector{0, predtim[1], predtim[2], 0, 0})) << "the plain f is the ges1 of slot 1";
    osnova.odeberPultony();
    EXPECT_EQ(tony(), (std::vector{0, 16, 18, 0, 0}));
    EXPECT_EQ(zapis.ZjistiNotu(1), nazev("g1,"));
    osnova.odeberNoty();
    EXPECT_EQ(tony(), (std::vector{0, 0, 0, 0, 0}));
    EXPECT_EQ(osnova.vybranySlot(), std::nullopt);
    EXPECT_EQ(osnova.stupnice(), stupnice("G dur"));
    zmen = 0;
    osnova.odeberNoty();
    osnova.odeberPultony();
    osnova.odeberOdrazky();
    EXPECT_EQ(zmen, 0);
    // Neighbours that swap their tones lose neither.
    zapis.NastavStupnici(stupnice("C dur"));
    pridej(f, Znamenko::Krizek);
    pridej(e, Znamenko::Krizek);
    osnova.polozNotu(2, {{Znamenko::Becko, f4}, CisloTonu(49)});
    osnova.odeberPultony();
    EXPECT_EQ(tony(), (std::vector{2, 1, 0, 0, 0})) << "f4 is not on the board";
}

} // namespace
} // namespace zvonika
