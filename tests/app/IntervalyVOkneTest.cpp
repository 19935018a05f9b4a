// Intervals as a player meets them in the main window.
#include "tests/app/OknoSPisni.h"

#include <QComboBox>
#include <QLabel>

using namespace zvonika;

namespace {

class IntervalyVOkne : public zvonika::testing::OknoSPisni {
protected:
    QString stav() { return qobject_cast<QLabel*>(prvek("lblStav"))->text(); }
    const TrebleBoard& deska() { return program->modely().diskant; }
    QString notaIntervalu() {
        const auto& interval = program->modely().zobrazovaciOsnova.interval();
        return interval ? interval->nazev : QString();
    }
};

} // namespace

TEST_F(IntervalyVOkne, TheSizeIsChosenBesideTheButtonsAndKept) {
    auto* volba = qobject_cast<QComboBox*>(prvek("cmbInterval"));
    QStringList velikosti;
    for (int i = 0; i < volba->count(); ++i)
        velikosti << volba->itemText(i);
    EXPECT_EQ(velikosti.join(' '), "sekunda tercie kvarta kvinta sexta septima oktáva nóna decima undecima "
                                   "duodecima tercdecima kvartdecima kvintdecima");
    program->modely().tonina.nastavStupnici(Key("G dur"));
    klikni("lbl(16)");
    klikni("cmdInterval");
    EXPECT_EQ(stav(), "Vrchní tercie od tónu g1 ve stupnici G dur je h1.");
    volba->setFocus();
    QTest::keyClick(volba, Qt::Key_End);
    QTest::keyClick(&program->okno(), Qt::Key_F3);
    EXPECT_EQ(stav(), "Vrchní kvintdecima od tónu g1 ve stupnici G dur je g3.");
    QTest::keyClick(&program->okno(), Qt::Key_F4);
    EXPECT_EQ(volba->currentText(), "kvintdecima");
    EXPECT_LT(prvek("cmbInterval")->geometry().bottom(), prvek("cmdInterval")->geometry().top());
}

TEST_F(IntervalyVOkne, WithoutASongTheLowestToneIsRefusedAndTheOthersWork) {
    dialogs.expect("Požadavek odmítnut !", "NENÍ OTEVŘENA ŽÁDNÁ SKLADBA !");
    klikni("cmdIntervalOdNejnizsiho");
    klikni("lbl(9)");
    program->modely().tonina.nastavStupnici(Key("C dur"));
    klikni("cmdSpodInterval");
    EXPECT_EQ(deska().stav(6), StavKnofliku::Hnedy);
}

TEST_F(IntervalyVOkne, AnIntervalOfTheRowIsShownUntilSomethingElseIs) {
    novaPisen();
    const char* const hmat[] = {"c1,", "e1,", "g1,"};
    for (int i = 0; i < 3; ++i)
        excel->put(QStringLiteral("%1").arg(QChar('B' + i)) + '1', hmat[i]);
    excel->put("I1", "Tah");
    excel->put("W1", "C dur");
    for (const char* const konec : {"cmdUvolDiskant", "cmdUvolKnofl", "cmdReadTah", "cmdDalsi"}) {
        klikni("cmdPrvni");
        klikni("cmdIntervalOdNejnizsiho");
        EXPECT_EQ(deska().stav(13), StavKnofliku::Hnedy);
        EXPECT_EQ(notaIntervalu(), "e1,");
        EXPECT_EQ(program->modely().zobrazovaciOsnova.tony().size(), 3) << "the grip stays on the staff";
        klikni(konec);
        EXPECT_NE(deska().stav(13), StavKnofliku::Hnedy) << konec;
        EXPECT_EQ(deska().barvaKlavesy(13), BarvaKlavesy::CaptionText) << konec;
        EXPECT_EQ(notaIntervalu(), "") << konec;
    }
    klikni("cmdPrvni");
    klikni("cmdInterval");
    klikni("cmdSpodInterval");
    EXPECT_EQ(deska().stav(13), StavKnofliku::Tah) << "the button is the grip's again";
    EXPECT_EQ(notaIntervalu(), "a,");
}
