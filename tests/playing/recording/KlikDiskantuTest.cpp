#include "playing/recording/KlikDiskantu.h"

#include "playing/recording/ZapisNoty.h"
#include "tests/playing/recording/ZapisovaniFixture.h"
#include "theory/clsNotyZapis.h"

namespace zvonika {
namespace {

using testing::s;

const auto mimoStupnici = QStringLiteral("Nota je mimo stupnici.");

class KlikDiskantuTest : public testing::Zapisovani {
protected:
    void ocekavejOznaceny(int n, const char* ton) {
        EXPECT_TRUE(diskant.oznacen(n)) << n;
        EXPECT_EQ(diskant.stav(n), StavKnofliku::Cerveny) << n;
        EXPECT_EQ(diskant.stavPomocneho(n),
                  diskant.nastroj().knoflik(n).pomocny ? StavKnofliku::Cerveny : StavKnofliku::Volny)
            << n;
        EXPECT_EQ(diskant.barvaKlavesy(n), BarvaKlavesy::Cervena) << n;
        EXPECT_EQ(s(diskant.tonKlavesy(n)), ton) << n;
    }
    void ocekavejVolny(int n) {
        EXPECT_FALSE(diskant.oznacen(n)) << n;
        EXPECT_EQ(diskant.stav(n), StavKnofliku::Volny) << n;
        EXPECT_EQ(diskant.stavPomocneho(n), StavKnofliku::Volny) << n;
        EXPECT_EQ(diskant.barvaKlavesy(n),
                  diskant.nastroj().knoflik(n).pulton ? BarvaKlavesy::WindowText : BarvaKlavesy::CaptionText)
            << n;
        EXPECT_EQ(s(diskant.tonKlavesy(n)), "") << n;
        EXPECT_FALSE(osnova.slotTonu(CisloTonu(n))) << n;
    }

    std::function<void()> vDialoguStupnice = [] { ADD_FAILURE() << "unexpected key dialog"; };
    QStringList oznameni;
    KlikDiskantu klik{diskant,
                      noty,
                      tonina,
                      dialogs,
                      {[this] { vDialoguStupnice(); }, [this](const QString& veta) { oznameni << veta; }}};
    ZapisNoty zapisNoty{osnova, klik};

    // What the entry staff does and then tells.
    bool pridejNotu(int jednotky) {
        const auto slot = noty.pridejNotu(jednotky);
        if (slot) zapisNoty.notaVlozena(*slot);
        return slot.has_value();
    }
    bool zmenNotu(int slot, const std::function<bool()>& zmena) {
        const CisloTonu puvodni = osnova.nota(slot)->ton;
        if (!zmena()) return false;
        zapisNoty.notaZmenena(slot, puvodni);
        return true;
    }
    bool posunNotu(int slot, int jednotky) {
        return zmenNotu(slot, [&] { return noty.posunNotu(slot, jednotky); });
    }
    bool nastavZnamenko(int slot, Znamenko znamenko) {
        return zmenNotu(slot, [&] { return noty.nastavZnamenko(slot, znamenko); });
    }
    void odeberNotu(int slot) {
        const CisloTonu puvodni = osnova.nota(slot)->ton;
        noty.odeberNotu(slot);
        zapisNoty.notaOdebrana(puvodni);
    }
};

TEST_F(KlikDiskantuTest, AClickMarksAndAnotherReleases) {
    const struct {
        int n;
        const char* ton;
    } radky[] = {{1, "e,"}, {2, "f,"}, {3, "fis,"}, {28, "g2,"}, {48, "dis4,"}, {49, "e4,"}};
    for (const auto& [n, ton] : radky) {
        klik.klik(n);
        ocekavejOznaceny(n, ton);
        EXPECT_TRUE(osnova.slotTonu(CisloTonu(n))) << n;
        klik.klik(n);
        ocekavejVolny(n);
    }
}

TEST_F(KlikDiskantuTest, AToneOutsideTheKeyIsDrawnWithANaturalOnlyOnYes) {
    zvolToninu("G dur");
    dialogs.expect(mimoStupnici, "Nota f, se ve stupnici G dur nepoužívá.", Answer::Cancel);
    klik.klik(2);
    ocekavejVolny(2);
    dialogs.expect(mimoStupnici, "odrážku", Answer::Yes);
    klik.klik(2);
    ocekavejOznaceny(2, "f,");
    EXPECT_EQ(osnova.nota(0)->poloha.znamenko, Znamenko::Odrazka);
}

TEST_F(KlikDiskantuTest, NoOpensTheKeyDialogDuringWhichPressesAreIgnored) {
    zvolToninu("F dur");
    vDialoguStupnice = [this] {
        klik.klik(3);
        klik.klik(9);
        zvolToninu("G dur");
        klik.nasledujToninu();
    };
    dialogs.expect(mimoStupnici, "Nota ges, se ve stupnici F dur nepoužívá.", Answer::No);
    klik.klik(3);
    ocekavejOznaceny(3, "fis,");
    EXPECT_TRUE(osnova.slotTonu(CisloTonu(3)));
    ocekavejVolny(9);
    klik.klik(9); // the question is closed
    ocekavejOznaceny(9, "c1,");
}

TEST_F(KlikDiskantuTest, ASixthToneIsMarkedAndTheUserToldThatTheStaffIsFull) {
    for (const int n : {1, 4, 6, 9, 13})
        klik.klik(n);
    EXPECT_TRUE(oznameni.isEmpty());
    klik.klik(16);
    ocekavejOznaceny(16, "g1,");
    ASSERT_EQ(oznameni.size(), 1);
    EXPECT_TRUE(oznameni.first().contains(QStringLiteral("Tón g1 je")));
    EXPECT_FALSE(osnova.slotTonu(CisloTonu(16)));
    klik.klik(16);
    ocekavejVolny(16);
}

TEST_F(KlikDiskantuTest, NamesFollowTheKey) {
    klik.klik(3);
    diskant.nastavNazvy(true, tonina.stupnice().text());
    zvolToninu("Ges dur");
    klik.nasledujToninu();
    EXPECT_EQ(s(diskant.tonKlavesy(3)), "ges,");
    EXPECT_EQ(s(diskant.popis(3)), "ges,");
    EXPECT_EQ(s(diskant.tonKlavesy(4)), "");
}

TEST_F(KlikDiskantuTest, AMovedNoteTakesItsMarkAlong) {
    pridejNotu(420);
    EXPECT_TRUE(nastavZnamenko(0, Znamenko::Odrazka)); // leaves the tone
    EXPECT_EQ(osnova.nota(0)->poloha.znamenko, Znamenko::Odrazka);
    ocekavejOznaceny(9, "c1,");
    EXPECT_TRUE(nastavZnamenko(0, Znamenko::Zadne));
    EXPECT_TRUE(posunNotu(0, 480));
    ocekavejVolny(9);
    ocekavejOznaceny(11, "d1,");
    EXPECT_TRUE(nastavZnamenko(0, Znamenko::Krizek));
    ocekavejVolny(11);
    ocekavejOznaceny(12, "dis1,");
    EXPECT_FALSE(posunNotu(0, 5000));
    ocekavejOznaceny(12, "dis1,");
    EXPECT_TRUE(oznameni.isEmpty());
}

TEST_F(KlikDiskantuTest, ARefusedNoteLeavesBoardAndStaff) {
    zvolToninu("C dur");
    pridejNotu(420);
    dialogs.expect(mimoStupnici, "cis1,", Answer::Cancel);
    nastavZnamenko(0, Znamenko::Krizek);
    ocekavejVolny(9);
    ocekavejVolny(10);
}

TEST_F(KlikDiskantuTest, MovingANoteAsksNothingAboutTheOthers) {
    zvolToninu("C dur");
    dialogs.expect(mimoStupnici, "cis1,", Answer::Yes);
    klik.klik(10);
    pridejNotu(540);
    posunNotu(1, 600);
    EXPECT_EQ(dialogs.count, 1);
    EXPECT_EQ(osnova.slotTonu(CisloTonu(10)), 0);
    ocekavejOznaceny(10, "cis1,");
    ocekavejOznaceny(14, "f1,");
}

TEST_F(KlikDiskantuTest, AMarkedButtonWhoseNoteIsEnteredKeepsItsMark) {
    klik.klik(9);
    osnova.odeberNoty();
    EXPECT_TRUE(pridejNotu(420));
    ocekavejOznaceny(9, "c1,");
}

} // namespace
} // namespace zvonika
