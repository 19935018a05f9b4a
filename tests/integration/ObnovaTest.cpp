// What the player is told and offered when changes are not in the file: at the start after a crash, and while
// they are not in the journal either.
#include "tests/integration/CelyProgram.h"

#include <QLabel>

namespace zvonika::testing {

namespace {

class ObnovaTest : public CelyProgram {
protected:
    /// Nothing is closed properly.
    void spadni() { program.reset(); }
    ScriptedDialogs& ocekavej(const QString& text, Answer odpoved = Answer::Ok) {
        return dialogs.expect("Neuložené písničky", text, odpoved);
    }
    void piseneANeulozene(const QString& jmeno) {
        novaPisen(jmeno);
        zapisHmat({"lbl(9)"}, true);
        spadni();
    }
};

} // namespace

TEST_F(ObnovaTest, SongsWithUnsavedChangesAreNamedAndOfferedAtTheStart) {
    piseneANeulozene("Polka");
    ocekavej("v písničce:\n„Polka.xls“: 4 změny, poslední ", Answer::Yes)
        .expect(jmenoTabulky, "V sešitu „Polka.xls“ zůstaly z minula", Answer::Yes);
    spust();
    EXPECT_EQ(bunka("B1"), "c1,");
    EXPECT_EQ(program->okno().windowTitle(), "Polka.xls");
    EXPECT_TRUE(povolen("cmdTah"));
    spadni();
    ocekavej("otevřít „Polka.xls“", Answer::No);
    spust();
    ocekavejStavBezPisne();
    piseneANeulozene("Valčík");
    ocekavej("v písničkách:\n„Valčík.xls“: ", Answer::No); // the last one worked on comes first
    spust();
    EXPECT_TRUE(dialogs.last.text.contains("\n„Polka.xls“: ")) << dialogs.last.text.toStdString();
    EXPECT_TRUE(dialogs.last.text.contains("otevřít „Valčík.xls“"));
    spadni();
    QFile::remove(pisen("Valčík.xls"));
    QFile::remove(pisen("Polka.xls"));
    ocekavej("ve složce „" + QDir::toNativeSeparators(pracovni()) + "“ už není; přejmenovanou");
    spust();
}

TEST_F(ObnovaTest, ChangesThatAreNotSafeAreSaidFirstInTheStatusLine) {
    EXPECT_FALSE(prvek("lblVarovani")->isVisible());
    QFile vCeste(slozka.filePath("zaznamy"));
    ASSERT_TRUE(vCeste.open(QIODevice::WriteOnly));
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
    EXPECT_TRUE(prvek("lblVarovani")->isVisible());
    EXPECT_TRUE(napis("lblVarovani").startsWith("Změny nejsou zajištěny proti výpadku: "));
#ifndef Q_OS_WIN // shorter names and other letters
    EXPECT_FALSE(prvek("lblStav")->isVisible()) << "no room for both";
#endif
    klikni("cmdPrvni");
    EXPECT_TRUE(prvek("lblVarovani")->isVisible()) << "for as long as it is so";
    vCeste.remove();
    prejdiNaTabulku();
    piseDoTabulky("x");
    klavesaTabulky(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !prvek("lblVarovani")->isVisible(); }));
}

} // namespace zvonika::testing
