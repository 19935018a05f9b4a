// Automatic stepping through the window: the button, the slider and what the
// player sees.
#include "tests/app/OknoSPisni.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>

namespace zvonika::testing {

namespace {

using Ms = RucniHodiny::Ms;

class AutomatOkna : public OknoSPisni {
protected:
    void SetUp() override {
        OknoSPisni::SetUp();
        pisenSHmaty(30);
    }
    void ocekavejStisknuto(bool stisknuto) {
        EXPECT_EQ(qobject_cast<QAbstractButton*>(prvek("cmdTimer"))->isChecked(), stisknuto);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(prvek("cmdTimer"))->state().checked, stisknuto);
        EXPECT_EQ(stav().startsWith("Automat jde"), stisknuto) << stav().toStdString();
    }
};

} // namespace

TEST_F(AutomatOkna, TheButtonStartsStepsAndStops) {
    const QImage vypnuto = prvek("cmdTimer")->grab().toImage();
    klikni("cmdTimer");
    ocekavejStisknuto(true);
    EXPECT_NE(prvek("cmdTimer")->grab().toImage(), vypnuto);
    hodiny.uplyn(Ms(4000));
    EXPECT_EQ(program->aktualniRadek(), 3);
    stiskni(Qt::Key_F9);
    ocekavejStisknuto(false);
    EXPECT_FALSE(hodiny.ceka());
}

TEST_F(AutomatOkna, TheSliderSetsTheRateByKeyboardAndTellsIt) {
    EXPECT_EQ(prvek("Slider1")->toolTip(), "Tempo: krok po 2 s");
    prvek("Slider1")->setFocus();
    QTest::keyClick(prvek("Slider1"), Qt::Key_Right);
    EXPECT_EQ(prvek("Slider1")->toolTip(), "Tempo: krok po 1,62 s");
    QTest::keyClick(prvek("Slider1"), Qt::Key_End);
    EXPECT_EQ(prvek("Slider1")->accessibleDescription(), "krok po 0,1 s");
    klikni("cmdTimer");
    hodiny.uplyn(Ms(300));
    EXPECT_EQ(program->aktualniRadek(), 4);
}

TEST_F(AutomatOkna, AModalWindowIsARest) {
    const std::function<void()> okna[] = {
        [this] { klikni("cmdStupnice"); },
        [this] { QDialog(&program->okno()).exec(); }, // as the question at the exit, which is no event
    };
    for (const auto& otevri : okna) {
        klikni("cmdPrvni");
        klikni("cmdTimer");
        QTimer::singleShot(0, &program->okno(), [this] {
            hodiny.uplyn(Ms(8000));
            EXPECT_EQ(program->aktualniRadek(), 1);
            QApplication::activeModalWidget()->close();
        });
        otevri();
        hodiny.uplyn(Ms(2000));
        EXPECT_EQ(program->aktualniRadek(), 2);
        klikni("cmdTimer");
    }
}

TEST_F(AutomatOkna, ATextBeingTypedIsARest) {
    klikni("cmdTimer");
    QLineEdit radka(&program->okno());
    radka.show();
    radka.setFocus();
    ASSERT_EQ(QApplication::focusWidget(), &radka);
    hodiny.uplyn(Ms(8000));
    EXPECT_EQ(program->aktualniRadek(), 1);
    radka.clearFocus();
    hodiny.uplyn(Ms(2000));
    EXPECT_EQ(program->aktualniRadek(), 2);
}

TEST_F(AutomatOkna, AClickIntoTheSheetIsARest) {
    klikni("cmdTimer");
    hodiny.uplyn(Ms(1900));
    excel->userSelects("A7");
    hodiny.uplyn(Ms(1900));
    EXPECT_EQ(excel->activeAddress(), "$A$7") << "a syllable could have been begun";
    hodiny.uplyn(Ms(300));
    EXPECT_EQ(program->aktualniRadek(), 8);
}

TEST_F(AutomatOkna, AFailingStepIsOneBoxAndTheEnd) {
    klikni("cmdTimer");
    log.fail("moveCursor", 91);
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 91");
    hodiny.uplyn(Ms(20000));
    ocekavejStisknuto(false);
}

TEST_F(AutomatOkna, EndsWithTheProgram) {
    klikni("cmdTimer");
    program->okno().close();
    EXPECT_FALSE(hodiny.ceka());
}

} // namespace zvonika::testing
