// Automatic stepping through the window: the button, the slider and what the player sees.
#include "tests/app/OknoSPisni.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QSlider>
#include <QTimer>

namespace zvonika::testing {

namespace {

using Ms = RucniHodiny::Ms;

class AutomatOkna : public OknoSPisni {
protected:
    void pisen(int hmatu) {
        novaPisen();
        for (int radek = 1; radek <= hmatu; ++radek) {
            excel->put(QStringLiteral("B%1").arg(radek), QStringLiteral("g1,"));
            excel->put(QStringLiteral("I%1").arg(radek), QStringLiteral("Tah"));
        }
        klikni("cmdPrvni");
    }
    QSlider& posuvnik() { return *qobject_cast<QSlider*>(prvek("Slider1")); }
    bool stisknuto() { return qobject_cast<QAbstractButton*>(prvek("cmdTimer"))->isChecked(); }
    bool pristupneStisknuto() {
        return QAccessible::queryAccessibleInterface(prvek("cmdTimer"))->state().checked;
    }
    QString stav() { return qobject_cast<QLabel*>(prvek("lblStav"))->text(); }
};

/// Notes which grip the counter showed each time it was painted.
class Malby : public QObject {
public:
    explicit Malby(QWidget* lblTon) : lblTon_(qobject_cast<QLabel*>(lblTon)) {
        lblTon->installEventFilter(this);
    }
    QStringList malby;

protected:
    bool eventFilter(QObject*, QEvent* udalost) override {
        if (udalost->type() == QEvent::Paint) malby << lblTon_->text();
        return false;
    }

private:
    QLabel* lblTon_;
};

} // namespace

TEST_F(AutomatOkna, TheButtonStartsStepsAndStops) {
    pisen(30);
    const QImage vypnuto = prvek("cmdTimer")->grab().toImage();
    klikni("cmdTimer");
    EXPECT_TRUE(stisknuto());
    EXPECT_TRUE(pristupneStisknuto());
    EXPECT_TRUE(prvek("cmdTimer")->toolTip().startsWith("Zastavit"));
    EXPECT_TRUE(stav().startsWith("Automat jde")) << stav().toStdString();
    EXPECT_NE(prvek("cmdTimer")->grab().toImage(), vypnuto);
    hodiny.uplyn(Ms(4000));
    EXPECT_EQ(program->aktualniRadek(), 3);
    QTest::keyClick(&program->okno(), Qt::Key_F9);
    EXPECT_FALSE(stisknuto());
    EXPECT_FALSE(pristupneStisknuto());
    EXPECT_FALSE(stav().startsWith("Automat"));
    EXPECT_FALSE(hodiny.ceka());
}

TEST_F(AutomatOkna, TheSliderSetsTheRateByKeyboardAndTellsIt) {
    pisen(30);
    EXPECT_EQ(prvek("Slider1")->toolTip(), "Tempo: krok po 2 s");
    prvek("Slider1")->setFocus();
    QTest::keyClick(&posuvnik(), Qt::Key_Right);
    EXPECT_EQ(prvek("Slider1")->toolTip(), "Tempo: krok po 1,62 s");
    QTest::keyClick(&posuvnik(), Qt::Key_End);
    EXPECT_EQ(prvek("Slider1")->accessibleDescription(), "krok po 0,1 s");
    klikni("cmdTimer");
    hodiny.uplyn(Ms(300));
    EXPECT_EQ(program->aktualniRadek(), 4);
    QTest::keyClick(&posuvnik(), Qt::Key_Home);
    EXPECT_EQ(program->modely().timer1.interval(), Ms(6000));
    klikni("cmdEndEdit");
    EXPECT_FALSE(povolen("Slider1"));
}

TEST_F(AutomatOkna, LateStepsAreMadeUpForOneByOneAndEachIsSeen) {
    pisen(30);
    posuvnik().setValue(5);
    klikni("cmdTimer");
    QCoreApplication::processEvents();
    Malby counter(prvek("lblTon"));
    hodiny.prodleva(Ms(520)); // five ticks behind, and nothing but ticks gets its turn
    int obratek = 0;
    while (hodiny.obratka())
        ++obratek;
    EXPECT_EQ(obratek, 5);
    EXPECT_EQ(counter.malby, QStringList({"2", "3", "4", "5"})) << counter.malby.join(' ').toStdString();
    EXPECT_EQ(program->aktualniRadek(), 6);
}

TEST_F(AutomatOkna, TheEndOfTheRecordedGripsStopsWithTheMessage) {
    pisen(2);
    klikni("cmdTimer");
    hodiny.uplyn(Ms(2000));
    dialogs.expect("Neprovedeno.", "Další záznam neuveden, nebo chybí informace o směru tahu měchu.");
    hodiny.uplyn(Ms(2000));
    EXPECT_FALSE(stisknuto());
    hodiny.uplyn(Ms(60000));
    EXPECT_EQ(dialogs.count, 1);
}

TEST_F(AutomatOkna, AModalWindowIsARest) {
    pisen(30);
    klikni("cmdTimer");
    QTimer::singleShot(0, &program->okno(), [this] {
        hodiny.uplyn(Ms(8000)); // while the key dialog is up
        EXPECT_EQ(program->aktualniRadek(), 1);
        QApplication::activeModalWidget()->close();
    });
    klikni("cmdStupnice");
    hodiny.uplyn(Ms(2000));
    EXPECT_EQ(program->aktualniRadek(), 2);
}

TEST_F(AutomatOkna, AFailingStepIsOneBoxAndTheEnd) {
    pisen(30);
    klikni("cmdTimer");
    log.fail("moveCursor", 91);
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 91");
    hodiny.uplyn(Ms(20000));
    EXPECT_EQ(dialogs.count, 1);
    EXPECT_FALSE(stisknuto());
}

TEST_F(AutomatOkna, EndOfTheSongAndOfTheProgram) {
    pisen(30);
    klikni("cmdTimer");
    klikni("cmdEndEdit");
    hodiny.uplyn(Ms(2000));
    EXPECT_FALSE(program->modely().timer1.zapnuty());
    EXPECT_FALSE(stisknuto());
    novaPisen("Druhá");
    klikni("cmdTimer");
    program->okno().close();
    EXPECT_FALSE(hodiny.ceka());
}

} // namespace zvonika::testing
