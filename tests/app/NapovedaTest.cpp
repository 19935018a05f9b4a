// The help window and the main window taking turns.
#include "platform/RuntimeError.h"
#include "tests/app/OknoSPisni.h"

#include <QTextBrowser>

using namespace zvonika;
using zvonika::testing::OknoSPisni;

namespace {

class NapovedaTest : public OknoSPisni {
protected:
    static QWidget* napoveda() {
        for (QWidget* okno : QApplication::topLevelWidgets())
            if (okno->objectName() == QLatin1String("frmBrowser")) return okno;
        return nullptr;
    }
    QWidget* otevri() {
        akce("mnuhtm")->trigger();
        EXPECT_FALSE(program->okno().isVisible());
        QWidget* okno = napoveda();
        if (!okno) throw std::runtime_error("no help window");
        EXPECT_TRUE(okno->isVisible());
        return okno;
    }
    void ocekavejHlavniOkno() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(napoveda(), nullptr);
        EXPECT_TRUE(program->okno().isVisible());
    }
};

} // namespace

TEST_F(NapovedaTest, TheManualIsReadAndTheMainWindowComesBackEachTime) {
    for (int poprve = 0; poprve < 2; ++poprve) {
        QWidget* okno = otevri();
        EXPECT_TRUE(QTest::qWaitFor([&] { return okno->windowTitle().contains("příručka"); }));
        EXPECT_GT(okno->findChild<QTextBrowser*>()->toPlainText().size(), 10000) << "the manual is not there";
        okno->close();
        ocekavejHlavniOkno();
    }
}

TEST_F(NapovedaTest, ABrowserThatCannotBeMadeBringsTheMainWindowBack) {
    tvurceProhlizece = [](const MistoProhlizece&) -> VytvorenyProhlizec {
        throw RuntimeError(7, "prohlížeč nelze vytvořit");
    };
    dialogs.expect("Neočekávaná chyba !", "prohlížeč nelze vytvořit");
    akce("mnuhtm")->trigger();
    ocekavejHlavniOkno();
}

TEST_F(NapovedaTest, AHelpWindowThatVanishesBringsTheMainWindowBack) {
    delete otevri();
    ocekavejHlavniOkno();
}

TEST_F(NapovedaTest, TheProgramsKeyFindsTheHelpWindowAndTheSongGoesOn) {
    novaPisen();
    QWidget* okno = otevri();
    program->prejdiNaHlavniOkno();
    EXPECT_FALSE(program->okno().isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(okno));
    okno->close();
    ocekavejHlavniOkno();
    EXPECT_EQ(program->okno().windowTitle(), "Polka.xls");
}
