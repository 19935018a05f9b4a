// The user closes the song's workbook, or the whole sheet application, behind the program's back.
#include "tests/integration/CelyProgram.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace zvonika::testing {

namespace {

const auto nenalezenaSkladba =
    QStringLiteral("Píseň nelze uložit !\nUživatel, nebo jiný program zavřel soubor s aktuální skladbou.\n"
                   "Pro příště prosím nezavírejte soubory Excelu ručně !");
const auto nenalezenaAplikace =
    QStringLiteral("Soubor nelze uložit !\nUživatel, nebo jiný program zavřel Excel.\n"
                   "Tato chyba může způsobit nestabilitu systému !");

class TabulkaZavrenaRucneTest : public CelyProgram {
protected:
    void SetUp() override {
        CelyProgram::SetUp();
        novaPisen();
        zapisHmat({"lbl(9)"}, true);
    }
    QString varovani() const { return program->modely().panel.vystraha; }
    void zavriTabulku() const { tabulka->windowHandle()->close(); }
    /// As a user does it: the menu is opened and the entry clicked.
    void ukonciTabulku() const {
        auto* nabidka = tabulka->findChild<QMenuBar*>()->actions().constFirst()->menu();
        nabidka->popup(tabulka->mapToGlobal(QPoint(5, 5)));
        QAction* polozka = tabulka->findChild<QAction*>("akceUkoncit");
        EXPECT_EQ(polozka->text().remove('&'), "Ukončit tabulku");
        ASSERT_TRUE(QTest::qWaitForWindowExposed(nabidka));
        QTest::mouseClick(nabidka->windowHandle(), Qt::LeftButton, {},
                          nabidka->actionGeometry(polozka).center());
    }
    void ocekavejDotazNaZmeny(Answer odpoved) {
        dialogs.expect(jmenoTabulky, "Chcete uložit změny v souboru „Polka.xls“?", odpoved);
    }
    void ukonciPisenSChybou(const QString& titulek, const QString& text) {
        dialogs.expect(titulek, text);
        klikni("cmdEndEdit");
        EXPECT_EQ(dialogs.last.text, text);
        EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
        ocekavejStavBezPisne();
        EXPECT_EQ(program->modely().diskant.stav(9), StavKnofliku::Volny);
    }
};

} // namespace

TEST_F(TabulkaZavrenaRucneTest, AClosedWorkbookIsReportedAtTheEndOfTheSong) {
    ocekavejDotazNaZmeny(Answer::No);
    zavriTabulku();
    EXPECT_TRUE(program->modely().pisen.otevrena()) << "the program does not find out by itself";
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 91");
    klikni("cmdDalsi");
    EXPECT_TRUE(varovani().contains("stiskněte Konec písničky (Ctrl+E) a pak ji znovu otevřete."));
    ukonciPisenSChybou("Nenalezena aktuální skladba.", nenalezenaSkladba);
    EXPECT_TRUE(varovani().contains("Otevřete ji znovu tlačítkem Otevřít.")) << varovani().toStdString();
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "") << "the user did not want it saved";

    novaPisen("Valčík");
    EXPECT_TRUE(tabulka->isVisible()) << "the sheet window comes back with the next song";
    zapisHmat({"lbl(9)"}, true);
    klikni("cmdEndEdit");
    EXPECT_EQ(textBunky(sesit(pisen("Valčík.xls")), "B1"), "c1,");
}

TEST_F(TabulkaZavrenaRucneTest, AnApplicationThatWasQuitIsReportedAtEveryStep) {
    ocekavejDotazNaZmeny(Answer::Yes);
    ukonciTabulku();
    EXPECT_FALSE(tabulka->isVisible());
    ukonciPisenSChybou("Nenalezena externí aplikace.", nenalezenaAplikace);
    EXPECT_TRUE(varovani().contains("ukončete Zvoniku (Ctrl+Q) a spusťte ji znovu."));

    dialogs.expectInput("Nová skladba.", "Valčík");
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 91");
    klikni("cmdNovaSkladba");
    EXPECT_TRUE(varovani().contains("ukončete Zvoniku (Ctrl+Q) a spusťte ji znovu."));
    ocekavejStavBezPisne();
    EXPECT_EQ(soubory(), QStringList{"Polka.xls"});
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
    EXPECT_FALSE(napis("lblStav").isEmpty());

    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 91"); // before any file is asked for
    klikni("cmdEdit");
    ocekavejStavBezPisne();

    dialogs.expect("Nestandardní ukončení.",
                   "Nezavírejte příště prosím Excel ručně !\nAplikace si ho ovládá sama.");
    zavriOkno();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_FALSE(program->okno().isVisible());
    EXPECT_EQ(program->modely().pisen.aplikaceExcel, nullptr);
}

} // namespace zvonika::testing
