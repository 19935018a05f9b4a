// Intervals as a player meets them in the main window.
#include "tests/app/OknoSPisni.h"

#include <QComboBox>

using namespace zvonika;

using IntervalyVOkne = zvonika::testing::OknoSPisni;

TEST_F(IntervalyVOkne, TheSizeIsChosenBesideTheButtonsAndKept) {
    auto* volba = qobject_cast<QComboBox*>(prvek("cmbInterval"));
    program->modely().tonina.nastavStupnici(Key("G dur"));
    klikni("lbl(16)");
    klikni("cmdInterval");
    EXPECT_EQ(stav(), "Vrchní tercie od tónu g1 ve stupnici G dur je h1.");
    volba->setFocus();
    QTest::keyClick(volba, Qt::Key_End);
    stiskni(Qt::Key_F3);
    EXPECT_EQ(stav(), "Vrchní kvintdecima od tónu g1 ve stupnici G dur je g3.");
    stiskni(Qt::Key_F4);
    EXPECT_EQ(volba->currentText(), "kvintdecima");
}

TEST_F(IntervalyVOkne, AnIntervalOfTheRowIsShownUntilSomethingElseIs) {
    const TrebleBoard& deska = program->modely().diskant;
    const auto& interval = program->modely().zobrazovaciOsnova.interval();
    pisenSHmaty(2);
    excel->put("W1", "C dur");
    for (const char* const konec : {"cmdUvolDiskant", "cmdUvolKnofl", "cmdReadTah", "cmdDalsi"}) {
        klikni("cmdPrvni");
        klikni("cmdIntervalOdNejnizsiho");
        EXPECT_EQ(deska.stav(20), StavKnofliku::Hnedy);
        EXPECT_TRUE(interval && interval->nazev == "h1,");
        klikni(konec);
        EXPECT_NE(deska.stav(20), StavKnofliku::Hnedy) << konec;
        EXPECT_FALSE(interval) << konec;
    }
}
