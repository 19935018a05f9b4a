// The practice aids in the real window: menu entries, dialogs from opening to
// closing, the board turned over.
#include "app/ui/TwipsScene.h"
#include "tests/app/OknoSPisni.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

using namespace zvonika;

namespace {

class Pomucky : public zvonika::testing::OknoSPisni {
protected:
    /// Starts anew over the settings as they are now.
    void spustZnovu() {
        program->okno().close();
        program.reset();
        SetUp();
    }
    /// Chooses the menu entry; `co` is done in its dialog, which closes itself or
    /// is cancelled.
    void vDialogu(const char* polozka, const std::function<void(QDialog&)>& co) {
        bool otevren = false;
        QTimer::singleShot(0, &program->okno(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            otevren = true;
            co(*dialog);
            dialog->reject();
        });
        akce(polozka)->trigger();
        EXPECT_TRUE(otevren) << polozka;
    }
    void klikniNaKnoflik(Poloha p) {
        QWidget* scena = program->okno().centralWidget();
        const QRect misto = dynamic_cast<TwipsScene&>(*scena).toPixels({p.left, p.top, 600, 570});
        QTest::mouseClick(program->okno().windowHandle(), Qt::LeftButton, {},
                          scena->mapTo(&program->okno(), misto.center()));
    }
};

} // namespace

TEST_F(Pomucky, TheMainWindowHidesForTheRowDialogAndComesBackHoweverItEnds) {
    for (const bool potvrdit : {false, true}) {
        vDialogu("mnuPrekrytRady", [&](QDialog& dialog) {
            EXPECT_FALSE(program->okno().isVisible());
            QTest::mouseClick(dialog.findChild<QWidget*>("cmdGDur"), Qt::LeftButton);
            if (potvrdit) QTest::keyClick(&dialog, Qt::Key_Return);
        });
        EXPECT_TRUE(program->okno().isVisible());
        EXPECT_EQ(prvek("cmdZabrana(5)")->isVisible(), potvrdit);
    }
    EXPECT_TRUE(excel->running());
    spustZnovu();
    EXPECT_TRUE(prvek("cmdZabrana(1)")->isVisible());
    EXPECT_FALSE(prvek("cmdZabrana(2)")->isVisible());
}

TEST_F(Pomucky, CheckMarksNamesAndNumbersComeBackWithTheNextStart) {
    program->modely().tonina.nastavStupnici(Key("F dur"));
    akce("mnu2Rady")->trigger();
    akce("mnuCislovat")->trigger();
    EXPECT_EQ(program->modely().diskant.popis(7), "b,");
    program->modely().tonina.nastavStupnici(Key("D dur"));
    EXPECT_EQ(program->modely().diskant.popis(7), "ais,") << "names follow the key";
    spustZnovu();
    EXPECT_TRUE(akce("mnu2Rady")->isChecked() && akce("mnuCislovat")->isChecked());
    EXPECT_EQ(program->modely().diskant.popis(7), "ais,");
    EXPECT_TRUE(prvek("lblCisKnofl(31)")->isVisible());
    akce("mnuCislovat")->trigger();
    EXPECT_FALSE(akce("mnuCislovat")->isChecked());
    EXPECT_FALSE(prvek("lblCisKnofl(31)")->isVisible());
    program->modely().diskant.nastavPopis(2, "3\r\n");
    akce("mnu2Rady")->trigger();
    for (const int n : {2, 7})
        EXPECT_EQ(program->modely().diskant.popis(n) + program->modely().diskant.popisPomocneho(n), "");
    for (const char* volba : {"Cislovani", "PopisKnof"})
        EXPECT_EQ(nastaveni.get(volba, "Index"), "0");
}

TEST_F(Pomucky, TurnedOverEveryButtonShowsAndRecordsItsOwnTone) {
    akce("mnuOtocitHmatnik")->trigger();
    EXPECT_FALSE(povolen("mnuOtocitHmatnik"));
    novaPisen();
    EXPECT_FALSE(povolen("mnuOtocitHmatnik"));
    klikniNaKnoflik({5400, 1560}); // c1 stands third from the top of row C
    klikniNaKnoflik({6600, 2760});
    EXPECT_TRUE(program->modely().diskant.oznacen(9) && program->modely().diskant.oznacen(14));
    EXPECT_EQ(nastaveni.get("Cislovani", "Index"), std::nullopt) << "nothing of it is remembered";
    klikni("cmdTah");
    EXPECT_EQ(excel->text("B1"), "c1,");
    EXPECT_EQ(excel->text("C1"), "f1,");
    klikni("cmdPredchozi");
    EXPECT_EQ(program->modely().diskant.stavPomocneho(14), StavKnofliku::Tah);
    EXPECT_EQ(prvek("lblCisKnofl(9)")->isVisible(), true);
    akce("mnuCislovat")->trigger();
    akce("mnuCislovat")->trigger();
    EXPECT_FALSE(prvek("lblCisKnofl(9)")->isVisible());
}
